#ifndef KAVRIX_MAP_RESOURCE_NAME_CODEC_H_
#define KAVRIX_MAP_RESOURCE_NAME_CODEC_H_

#include <optional>
#include <string>
#include <string_view>

#include "map_resource/bubble_kinds.h"
#include "map_resource/resource_name.h"
#include "util/key_checker.h"
#include "util/key_lister.h"
#include "util/key_reader.h"
#include "util/key_writer.h"
#include "util/string_util.h"

// What the encoder needs of a kind is one struct in the kind's file, called Names below:
//
//   kMarker                 the marker
//   Carried                 what a name carries: the descriptor, or a struct that adds what it does not store
//   List(keys, carried)     the key list
//   ListAll(keys, carried)  the same, and what stands outside of the JSON object or the fields
//   Read(name, carried)     reads a name as the parser does; false where the parser logs a failure
//   Write(carried)          the payload
//
// The functions here do the rest for all kinds.
namespace kavrix {

struct Payload {
  std::string text;
  std::optional<BadText> bad;  // the first one; `text` then has it in it nevertheless
};

// The first place in a field's text that the reader would take for something else.
std::optional<BadText> FindBadText(const std::string& field, const std::string& text,
                                   std::string_view marker);

// A payload of fields joined by "_".
Payload FieldsPayload(const FieldWriter& fields, std::string_view marker);

// Puts "@" and the direction behind.
Payload WithDirection(Payload payload, std::int16_t direction);

// prefix + payload + marker. Throws EncodeError when the payload has a bad text or the name would go to
// another kind.
std::string JoinName(const Payload& payload, std::string_view marker);

// Throws EncodeError because `name` would not come back as what it was made of: the kind's reader and writer
// have drifted apart.
[[noreturn]] void FailOfLoss(std::string_view marker, const std::string& name);

[[noreturn]] void FailOfKey(std::string_view marker, const KeyError& error);
[[noreturn]] void FailOfText(std::string_view marker, const BadText& bad,
                             const std::string& consequence = "");

template <class Names>
Payload WriteJsonObject(const typename Names::Carried& carried) {
  JsonKeyWriter keys(JsonKeyWriter::Escapes::kForNames);
  Names::List(keys, carried);
  JsonKeyWriter defaults(JsonKeyWriter::Escapes::kForNames);
  const typename Names::Carried untouched{};
  Names::List(defaults, untouched);
  return {keys.ObjectWithout(defaults), keys.bad()};
}

// A JSON object as --fields shows it. Throws EncodeError for a text that is not UTF-8.
template <class Names>
std::string FieldsOf(const typename Names::Carried& carried) {
  JsonKeyWriter keys(JsonKeyWriter::Escapes::kPlain);
  Names::ListAll(keys, carried);
  if (keys.bad()) FailOfText(Names::kMarker, *keys.bad());
  JsonKeyWriter defaults(JsonKeyWriter::Escapes::kPlain);
  const typename Names::Carried untouched{};
  Names::ListAll(defaults, untouched);
  return keys.ObjectWithout(defaults);
}

template <class Names>
std::string EncodeName(const typename Names::Carried& carried) {
  std::string name = JoinName(Names::Write(carried), Names::kMarker);
  typename Names::Carried read_back{};
  if (!Names::Read(name, read_back) || FieldsOf<Names>(read_back) != FieldsOf<Names>(carried)) {
    FailOfLoss(Names::kMarker, name);
  }
  return name;
}

template <class Names>
std::string EncodeFields(const Json::Value& fields) {
  typename Names::Carried carried{};
  try {
    KeyChecker keys(fields);
    Names::ListAll(keys, carried);
    keys.RequireAllRead();
  } catch (const KeyError& error) {
    FailOfKey(Names::kMarker, error);
  }
  return EncodeName<Names>(carried);
}

template <class Names>
std::optional<std::string> ReadFields(const std::string& name) {
  typename Names::Carried carried{};
  if (!Names::Read(name, carried)) return std::nullopt;
  return FieldsOf<Names>(carried);
}

template <class Names>
void ListKeys(KeyLister& keys) {
  typename Names::Carried carried{};
  Names::ListAll(keys, carried);
}

template <class Names>
constexpr NameCodec kCodec = {ListKeys<Names>, EncodeFields<Names>, ReadFields<Names>};

// The bases of the structs, by the shape of the names; `Self` is the struct itself.

// prefix JSON-object marker
template <class Self, class CarriedType>
struct JsonNames {
  using Carried = CarriedType;
  template <class Keys, class AnyCarried>
  static void ListAll(Keys& keys, AnyCarried& carried) {
    Self::List(keys, carried);
  }
  static bool Read(const std::string& name, Carried& carried) {
    return ReadJsonObject(StripPrefixAndMarker(name, Self::kMarker),
                          [&](auto& keys) { Self::List(keys, carried); });
  }
  static Payload Write(const Carried& carried) { return WriteJsonObject<Self>(carried); }
};

// The same, where the reader finds the object in the whole name and logs nothing when there is none.
template <class Self, class CarriedType>
struct WholeNames : JsonNames<Self, CarriedType> {
  static bool Read(const std::string& name, CarriedType& carried) {
    ReadObject(name, carried);
    return true;
  }
  static bool ReadObject(std::string_view name, CarriedType& carried) {
    return ReadJsonObject(FindJsonObject(name), [&](auto& keys) { Self::List(keys, carried); });
  }
};

// prefix JSON-object "@" direction marker. The direction is read also behind a JSON text that is broken.
template <class Self, class CarriedType>
struct JsonAndDirectionNames {
  using Carried = CarriedType;
  template <class Keys, class AnyCarried>
  static void ListAll(Keys& keys, AnyCarried& carried) {
    Self::List(keys, carried);
    keys.Integer("direction", carried.direction);
  }
  static bool Read(const std::string& name, Carried& carried) {
    const auto parts = SplitFields<2>(StripPrefix(name), '@');
    return parts.count != 2 || Self::ReadParts(parts, carried);
  }
  static bool ReadParts(const Fields<2>& parts, Carried& carried) {
    return ReadParts(parts, carried, [](std::string_view) {});
  }
  // Of two parts. False when the first is no JSON object; `on_broken_json` gets it then, before the direction
  // is read.
  template <class Action>
  static bool ReadParts(const Fields<2>& parts, Carried& carried, Action on_broken_json) {
    const bool parsed = ReadJsonObject(parts.at[0], [&](auto& keys) { Self::List(keys, carried); });
    if (!parsed) on_broken_json(parts.at[0]);
    ReadDirectionTail(parts.at[1], carried);
    return parsed;
  }
  static Payload Write(const Carried& carried) {
    return WithDirection(WriteJsonObject<Self>(carried), carried.direction);
  }
};

// prefix head "@" direction marker, where the head is FieldCount fields joined by "_". Head and tail are read
// independently of each other, and nothing is a failure.
template <class Self, class CarriedType, std::size_t FieldCount>
struct FieldNames {
  using Carried = CarriedType;
  using Head = Fields<FieldCount>;
  template <class Keys, class AnyCarried>
  static void ListAll(Keys& keys, AnyCarried& carried) {
    Self::List(keys, carried);
    keys.Integer("direction", carried.direction);
  }
  static bool Read(const std::string& name, Carried& carried) {
    const auto parts = SplitFields<2>(StripPrefix(name), '@');
    if (parts.count != 2) return true;
    Self::ReadHead(SplitFields<FieldCount>(parts.at[0], '_'), carried);
    ReadDirectionTail(parts.at[1], carried);
    return true;
  }
  static void ReadHead(const Head& fields, Carried& carried) {
    if (fields.count != FieldCount) return;
    FieldReader reader(fields.at.data());
    Self::List(reader, carried);
  }
  static Payload Write(const Carried& carried) {
    FieldWriter fields(FieldCount);
    Self::List(fields, carried);
    return WithDirection(FieldsPayload(fields, Self::kMarker), carried.direction);
  }
};

}  // namespace kavrix

#endif  // KAVRIX_MAP_RESOURCE_NAME_CODEC_H_
