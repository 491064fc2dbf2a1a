#ifndef KAVRIX_MAP_RESOURCE_NAME_FORMAT_H_
#define KAVRIX_MAP_RESOURCE_NAME_FORMAT_H_

#include <string>
#include <string_view>

#include "key_list/key_reader.h"
#include "map_resource/bubble_markers.h"
#include "map_resource/resource_name.h"
#include "util/fields.h"

// The format of a kind, a struct in the kind's file, describes its names:
//
//   kMarker                   the marker
//   Carried                   what a name carries: the descriptor, or a struct that adds what it lacks
//   List(keys, carried)       the key list: the keys of the JSON object, or the fields
//   ListAll(keys, carried)    the key list, then what else the name carries
//   PayloadOf(name)           the payload that Read takes
//   Read(payload, carried)    reads a payload
//   ReadName(name, carried)   reads the payload of a whole name; false where the parser logs a failure
//
// The parser and the encoder's proof of a name run the same Read. A format derives from the base below that
// fits its names, which takes the format as `Self` and gives all but kMarker and List.
namespace kavrix {

// For callers of Read that have nothing to do there.
struct NoAction {
  template <class... Arguments>
  void operator()(const Arguments&...) const {}
};

// prefix JSON-object marker
template <class Self, class CarriedType>
struct JsonFormat {
  using Carried = CarriedType;
  template <class Keys, class AnyCarried>
  static void ListAll(Keys& keys, AnyCarried& carried) {
    Self::List(keys, carried);
  }
  static std::string_view PayloadOf(const std::string& name) {
    return StripPrefixAndMarker(name, Self::kMarker);
  }
  // False when the payload is not a JSON object. Calls `when_parsed` before it reads the first key.
  template <class Action = NoAction>
  static bool Read(std::string_view payload, Carried& carried, Action when_parsed = {}) {
    return ReadJsonObject(payload, [&](auto& keys) {
      when_parsed();
      Self::List(keys, carried);
    });
  }
  static bool ReadName(const std::string& name, Carried& carried) {
    return Self::Read(Self::PayloadOf(name), carried);
  }
};

// The same, but Read finds the object in the whole name, and a name without one is not a failure.
template <class Self, class CarriedType>
struct WholeNameFormat : JsonFormat<Self, CarriedType> {
  static std::string_view PayloadOf(const std::string& name) { return FindJsonObject(name); }
  static bool ReadName(const std::string& name, CarriedType& carried) {
    Self::Read(PayloadOf(name), carried);
    return true;
  }
};

// prefix JSON-object "@" direction marker
template <class Self, class CarriedType>
struct JsonAndDirectionFormat {
  using Carried = CarriedType;
  template <class Keys, class AnyCarried>
  static void ListAll(Keys& keys, AnyCarried& carried) {
    Self::List(keys, carried);
    keys.Integer("direction", carried.direction);
  }
  static std::string_view PayloadOf(const std::string& name) { return StripPrefix(name); }
  // False when the part before "@" is not a JSON object: passes it to `on_broken_json`, and reads the
  // direction after that all the same. A payload that is not two parts sets nothing and is not a failure.
  template <class Action = NoAction>
  static bool Read(std::string_view payload, Carried& carried, Action on_broken_json = {}) {
    const auto parts = SplitFields<2>(payload, '@');
    if (parts.count != 2) return true;
    const bool parsed = ReadJsonObject(parts.at[0], [&](auto& keys) { Self::List(keys, carried); });
    if (!parsed) on_broken_json(parts.at[0]);
    ReadDirectionTail(parts.at[1], carried);
    return parsed;
  }
  static bool ReadName(const std::string& name, Carried& carried) {
    return Self::Read(Self::PayloadOf(name), carried);
  }
};

// prefix head "@" direction marker, where the head is FieldCount fields joined by "_". Head and tail are read
// independently of each other, and nothing is a failure.
template <class Self, class CarriedType, std::size_t FieldCount>
struct FieldsFormat {
  using Carried = CarriedType;
  using Head = Fields<FieldCount>;
  static constexpr std::size_t kFieldCount = FieldCount;
  template <class Keys, class AnyCarried>
  static void ListAll(Keys& keys, AnyCarried& carried) {
    Self::List(keys, carried);
    keys.Integer("direction", carried.direction);
  }
  static std::string_view PayloadOf(const std::string& name) { return StripPrefix(name); }
  static void Read(std::string_view payload, Carried& carried) {
    const auto parts = SplitFields<2>(payload, '@');
    if (parts.count != 2) return;
    Self::ReadHead(SplitFields<FieldCount>(parts.at[0], '_'), carried);
    ReadDirectionTail(parts.at[1], carried);
  }
  static void ReadHead(const Head& fields, Carried& carried) {
    if (fields.count != FieldCount) return;
    FieldReader reader(fields.at.data());
    Self::List(reader, carried);
  }
  static bool ReadName(const std::string& name, Carried& carried) {
    Self::Read(Self::PayloadOf(name), carried);
    return true;
  }
};

}  // namespace kavrix

#endif  // KAVRIX_MAP_RESOURCE_NAME_FORMAT_H_
