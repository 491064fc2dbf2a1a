#include "inspect/json_writer.h"

#include <charconv>
#include <cmath>
#include <cstring>

#include "inspect/shortest_real.h"
#include "util/eight_bytes.h"
#include "util/utf8.h"

namespace kavrix::inspect {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";  // U+FFFD

// Marks the bytes that are not written as they are, and those that may not be UTF-8.
std::uint64_t MarkSpecial(std::uint64_t word) {
  return eight_bytes::MarkBelow(word, 0x20) | eight_bytes::Mark(word, '"') | eight_bytes::Mark(word, '\\') |
         eight_bytes::MarkNonAscii(word);
}

}  // namespace

void JsonWriter::Key(std::string_view key) {
  Separate();
  text_ += '"';
  text_ += key;
  text_ += "\":";
  needs_comma_ = false;
}

void JsonWriter::Integer(std::int64_t value) {
  Separate();
  text_.AppendNumber(value);
}

void JsonWriter::Real(float value) {
  if (!std::isfinite(value)) return Null();
  if (value == 0 && std::signbit(value)) return Raw("-0.0");
  Separate();
#ifdef __cpp_lib_to_chars
  text_.AppendNumber(value);
#else
  text_ += ShortestText(value);
#endif
}

void JsonWriter::Text(std::string_view text) {
  Separate();
  text_ += '"';
  while (text.size() >= 8) {
    // Copies all 8 bytes and keeps those before the first that is special.
    std::memcpy(text_.Reserve(8), text.data(), 8);
    const std::uint64_t marks = MarkSpecial(eight_bytes::Load(text.data()));
    const std::size_t plain = marks == 0 ? 8 : eight_bytes::BytesBefore(marks);
    text_.Advance(plain);
    text.remove_prefix(plain);
    if (marks != 0) text.remove_prefix(PutCharacter(text));
  }
  while (!text.empty()) text.remove_prefix(PutCharacter(text));
  text_ += '"';
}

// Writes the character that `text` begins with, and returns how many bytes it has.
std::size_t JsonWriter::PutCharacter(std::string_view text) {
  const auto first = static_cast<unsigned char>(text[0]);
  if (first < 0x80) {
    if (first < 0x20 || first == '"' || first == '\\') {
      PutEscape(text[0]);
    } else {
      text_ += text[0];
    }
    return 1;
  }
  const Utf8Piece piece = NextUtf8(text);
  text_ += piece.is_valid ? text.substr(0, piece.length) : kReplacement;
  return piece.length;
}

void JsonWriter::PutEscape(char c) {
  constexpr std::string_view kControls = "\b\f\n\r\t";
  text_ += '\\';
  if (c == '"' || c == '\\') {
    text_ += c;
    return;
  }
  const std::size_t at = kControls.find(c);
  if (at != std::string_view::npos) {
    text_ += "bfnrt"[at];
    return;
  }
  text_ += "u00";
  text_ += "0123456789ABCDEF"[c >> 4];
  text_ += "0123456789ABCDEF"[c & 0xF];
}

std::string JsonWriter::TakeLine() {
  text_ += '\n';
  return text_.Take();
}

}  // namespace kavrix::inspect
