#include "map_resource/name_codec.h"

#include <exception>

#include "map_resource/encode_error.h"
#include "map_resource/map_resource_manager.h"
#include "util/utf8.h"

namespace kavrix {
namespace {

std::string KindName(std::string_view marker) { return std::string(marker.substr(1)); }

// Whether the name, which holds the marker, reaches the parser of that marker. Marker names always do: their
// entry point does not look for markers.
bool GoesTo(std::string_view name, std::string_view marker) {
  return marker == kMarkerNameTail || FindBubbleKind(name) == FindBubbleKind(marker);
}

// Describes for messages what the reader makes of the name, which holds the marker.
std::string Decoded(const std::string& name, std::string_view marker) {
  const BubbleKindInfo& info =
      marker == kMarkerNameTail ? kMarkerNameInfo : InfoOf(FindBubbleKind(name).value());
  const std::string kind(info.Name());
  try {
    const std::optional<std::string> fields = info.codec.read_fields(name);
    return kind + " " + fields.value_or("without fields, because its payload does not parse");
  } catch (const std::exception&) {
    return kind + " with bytes that are not UTF-8";
  }
}

std::size_t ColumnOf(std::string_view text, std::size_t byte_offset) {
  std::size_t column = 1;
  for (std::size_t at = 0; at < byte_offset; ++column) at += NextUtf8(text.substr(at)).length;
  return column;
}

}  // namespace

std::optional<BadText> FindBadText(const std::string& field, const std::string& text,
                                   std::string_view marker) {
  for (std::size_t at = 0; at < text.size();) {
    const Utf8Piece piece = NextUtf8(std::string_view(text).substr(at));
    if (!piece.is_valid) return BadText{field, text, at, "is not UTF-8"};
    if (text[at] == '_' || text[at] == '@') return BadText{field, text, at, "separates fields"};
    at += piece.length;
  }
  const std::optional<BubbleKind> kind = FindBubbleKind(text);
  if (!kind || GoesTo(text + std::string(marker), marker)) return std::nullopt;
  return BadText{field, text, text.find(MarkerOf(*kind)), "begins the marker of another kind"};
}

Payload FieldsPayload(const KeyWriter& written, std::size_t count, std::string_view marker) {
  Payload payload;
  for (std::size_t i = 0; i < count; ++i) {
    if (i > 0) payload.text += '_';
    if (i >= written.fields().size()) continue;
    const KeyWriter::Field& field = written.fields()[i];
    payload.text += field.text;
    const bool is_read = field.name != nullptr;
    if (is_read && !payload.bad) payload.bad = FindBadText(field.name, field.text, marker);
  }
  return payload;
}

Payload WithDirection(Payload payload, std::int16_t direction) {
  payload.text += "@" + std::to_string(direction);
  return payload;
}

std::string JoinName(const Payload& payload, std::string_view marker) {
  const std::string prefix = MapResourceManager::kavrix_resource_prefix;
  std::string name = prefix + payload.text + std::string(marker);
  if (payload.bad)
    FailOfText(marker, *payload.bad, "; the reader would have decoded " + Decoded(name, marker));
  if (!GoesTo(name, marker)) {
    throw EncodeError(
        KindName(marker), "prefix",
        "\"" + prefix + "\" holds a marker; the reader would have decoded " + Decoded(name, marker));
  }
  return name;
}

void FailOfLoss(std::string_view marker, const std::string& name) {
  throw EncodeError(KindName(marker), "name", "the reader would have decoded " + Decoded(name, marker));
}

void FailOfKey(std::string_view marker, const KeyError& error) {
  throw EncodeError(KindName(marker), error.key().empty() ? "fields" : error.key(), error.what());
}

void FailOfText(std::string_view marker, const BadText& bad, const std::string& consequence) {
  const std::size_t length = NextUtf8(std::string_view(bad.text).substr(bad.byte_offset)).length;
  const BadCharacter character = {bad.text.substr(bad.byte_offset, length), bad.byte_offset,
                                  ColumnOf(bad.text, bad.byte_offset)};
  throw EncodeError(KindName(marker), bad.field,
                    "\"" + ToValidUtf8(character.bytes) + "\" at byte " +
                        std::to_string(character.byte_offset) + ", column " +
                        std::to_string(character.column) + ", " + bad.problem + consequence,
                    character);
}

}  // namespace kavrix
