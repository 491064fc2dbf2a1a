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

// Runs a format backwards, for all kinds. A kind that writes its payload in a way of its own has an overload
// of PayloadFor for its format, one with values that change nothing in the descriptor an overload of
// Canonical.
namespace kavrix {

struct Payload {
  std::string text;
  std::optional<BadText> bad;  // the first one; `text` holds it nevertheless
};

// The first place in a field's text that the reader would take for something else.
std::optional<BadText> FindBadText(const std::string& field, const std::string& text,
                                   std::string_view marker);

// A payload of `count` fields joined by "_".
Payload FieldsPayload(const KeyWriter& written, std::size_t count, std::string_view marker);

// Appends "@" and the direction.
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

// What decodes to the same descriptor is written in one way.
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

// A JSON object as --fields shows it. Throws EncodeError for a text that is not UTF-8.
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
constexpr NameCodec kCodec = {ListKeys<Format>, EncodeFields<Format>, ReadFields<Format>};

template <class Format>
constexpr BubbleKindInfo MakeInfo(BubbleKind kind, std::optional<std::uint16_t> kind_code, PayloadWay way,
                                  const char* grammar) {
  const auto line = static_cast<std::size_t>(kind);
  return {MarkerOf(kind), EntryPoint::kBubble, kKindStems[line], kDescriptorTypes[line], kind_code, way,
          grammar,        kCodec<Format>};
}

}  // namespace kavrix

#endif  // KAVRIX_MAP_RESOURCE_NAME_CODEC_H_
