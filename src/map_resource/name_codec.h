#ifndef KAVRIX_MAP_RESOURCE_NAME_CODEC_H_
#define KAVRIX_MAP_RESOURCE_NAME_CODEC_H_

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "key_list/key_checker.h"
#include "key_list/key_lister.h"
#include "key_list/key_writer.h"
#include "map_resource/bubble_kinds.h"
#include "map_resource/name_format.h"
#include "map_resource/name_trace.h"

// Encodes the names of all kinds by running their formats backwards. A kind overloads PayloadFor for its
// format if it writes the payload in its own way, and Canonical if some values make no difference to the
// descriptor.
namespace kavrix {

struct Payload {
  std::string text;
  std::optional<BadText> bad;  // the first bad place, which `text` holds all the same
};

// Returns the first place in a field that the reader would take for something else.
std::optional<BadText> FindBadText(const std::string& field, const std::string& text,
                                   std::string_view marker);

// Joins `count` fields by "_".
Payload FieldsPayload(const KeyWriter& written, std::size_t count, std::string_view marker);

// Appends "@" and the direction.
Payload WithDirection(Payload payload, std::int16_t direction);

// Returns prefix + payload + marker. Throws EncodeError when the payload is bad or the name would go to
// another kind.
std::string JoinName(const Payload& payload, std::string_view marker);

// Throws EncodeError because `name` does not decode to what was encoded: the kind's reader and writer
// disagree.
[[noreturn]] void FailOfLoss(std::string_view marker, const std::string& name);

[[noreturn]] void FailOfKey(std::string_view marker, const KeyError& error);
[[noreturn]] void FailOfText(std::string_view marker, const BadText& bad,
                             const std::string& consequence = "");

template <class Self, class Carried>
Payload PayloadFor(const JsonFormat<Self, Carried>&, const KeyWriter& written, const Carried&) {
  return {written.Object(), written.bad()};
}

template <class Self, class Carried>
Payload PayloadFor(const JsonAndDirectionFormat<Self, Carried>&, const KeyWriter& written,
                   const Carried& carried) {
  return WithDirection({written.Object("direction"), written.bad()}, carried.direction);
}

template <class Self, class Carried, std::size_t FieldCount>
Payload PayloadFor(const FieldsFormat<Self, Carried, FieldCount>&, const KeyWriter& written,
                   const Carried& carried) {
  return WithDirection(FieldsPayload(written, FieldCount, Self::kMarker), carried.direction);
}

// Replaces values that decode to the same descriptor by one of them. The default changes nothing.
template <class Format>
const typename Format::Carried& Canonical(const Format&, const typename Format::Carried& carried) {
  return carried;
}

template <class Format>
KeyWriter Written(const typename Format::Carried& carried, KeyWriter::Escapes escapes) {
  KeyWriter keys(escapes);
  Format::ListAll(keys, carried);
  return keys;
}

// Returns the JSON object that --fields shows. Throws EncodeError for a string that is not UTF-8.
template <class Format>
std::string FieldsOf(const typename Format::Carried& carried) {
  const KeyWriter written = Written<Format>(carried, KeyWriter::Escapes::kPlain);
  if (written.bad()) FailOfText(Format::kMarker, *written.bad());
  return written.Object();
}

template <class Format>
std::string EncodeName(const typename Format::Carried& value) {
  const typename Format::Carried& carried = Canonical(Format(), value);
  const KeyWriter written = Written<Format>(carried, KeyWriter::Escapes::kForNames);
  std::string name = JoinName(PayloadFor(Format(), written, carried), Format::kMarker);
  typename Format::Carried read_back{};
  if (!Format::ReadName(name, read_back) ||
      !(Written<Format>(read_back, KeyWriter::Escapes::kForNames) == written)) {
    FailOfLoss(Format::kMarker, name);
  }
  return name;
}

template <class Format>
std::string EncodeFields(const Json::Value& fields) {
  typename Format::Carried carried{};
  try {
    KeyChecker keys(fields);
    Format::ListAll(keys, carried);
    keys.RequireAllRead();
  } catch (const KeyError& error) {
    FailOfKey(Format::kMarker, error);
  }
  return EncodeName<Format>(carried);
}

template <class Format>
std::optional<std::string> ReadFields(const std::string& name) {
  typename Format::Carried carried{};
  if (!Format::ReadName(name, carried)) return std::nullopt;
  return FieldsOf<Format>(carried);
}

template <class Format>
void ListKeys(KeyLister& keys) {
  typename Format::Carried carried{};
  Format::ListAll(keys, carried);
}

template <class Format>
constexpr NameCodec kCodec = {ListKeys<Format>, EncodeFields<Format>, ReadFields<Format>, TraceName<Format>};

template <class Format>
constexpr BubbleKindInfo MakeInfo(BubbleKind kind, std::optional<std::uint16_t> kind_code, PayloadWay way,
                                  const char* grammar) {
  const auto line = static_cast<std::size_t>(kind);
  return {MarkerOf(kind), EntryPoint::kBubble, kKindStems[line], kDescriptorTypes[line], kind_code, way,
          grammar,        kCodec<Format>};
}

}  // namespace kavrix

#endif  // KAVRIX_MAP_RESOURCE_NAME_CODEC_H_
