#include "tools/json_writer.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>

#include "util/eight_bytes.h"
#include "util/utf8.h"

namespace kavrix::tools {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";  // U+FFFD

// Marks the bytes that are not written as they are, and those that may not be UTF-8.
std::uint64_t MarkSpecial(std::uint64_t word) {
  return eight_bytes::MarkBelow(word, 0x20) | eight_bytes::Mark(word, '"') | eight_bytes::Mark(word, '\\') |
         eight_bytes::MarkNonAscii(word);
}

}  // namespace

void JsonWriter::Grow(std::size_t size) { buffer_.resize(std::max(2 * buffer_.size(), size_ + size)); }

template <class Number>
void JsonWriter::PutNumber(Number value) {
  constexpr std::size_t kMostDigits = 32;
  Separate();
  char* const begin = Reserve(kMostDigits);
  size_ += static_cast<std::size_t>(std::to_chars(begin, begin + kMostDigits, value).ptr - begin);
}

void JsonWriter::Key(std::string_view key) {
  Separate();
  Put('"');
  Put(key);
  Put("\":");
  needs_comma_ = false;
}

void JsonWriter::Integer(std::int64_t value) { PutNumber(value); }

void JsonWriter::Real(float value) {
  if (!std::isfinite(value)) return Null();
  if (value == 0 && std::signbit(value)) return Raw("-0.0");
  PutNumber(value);
}

void JsonWriter::Text(std::string_view text) {
  Separate();
  Put('"');
  while (text.size() >= 8) {
    // Copies all 8 bytes and keeps those before the first that is special.
    std::memcpy(Reserve(8), text.data(), 8);
    const std::uint64_t marks = MarkSpecial(eight_bytes::Load(text.data()));
    const std::size_t plain = marks == 0 ? 8 : eight_bytes::BytesBefore(marks);
    size_ += plain;
    text.remove_prefix(plain);
    if (marks != 0) text.remove_prefix(PutCharacter(text));
  }
  while (!text.empty()) text.remove_prefix(PutCharacter(text));
  Put('"');
}

// Writes the character that `text` begins with, and returns how many bytes it has.
std::size_t JsonWriter::PutCharacter(std::string_view text) {
  const auto first = static_cast<unsigned char>(text[0]);
  if (first < 0x80) {
    first < 0x20 || first == '"' || first == '\\' ? PutEscape(text[0]) : Put(text[0]);
    return 1;
  }
  const Utf8Piece piece = NextUtf8(text);
  Put(piece.is_valid ? text.substr(0, piece.length) : kReplacement);
  return piece.length;
}

void JsonWriter::PutEscape(char c) {
  Put('\\');
  if (c == '"' || c == '\\') return Put(c);
  constexpr std::string_view kControls = "\b\f\n\r\t";
  const std::size_t at = kControls.find(c);
  if (at != std::string_view::npos) return Put("bfnrt"[at]);
  Put("u00");
  Put("0123456789ABCDEF"[c >> 4]);
  Put("0123456789ABCDEF"[c & 0xF]);
}

std::string JsonWriter::TakeLine() {
  Put('\n');
  buffer_.resize(size_);
  return std::move(buffer_);
}

}  // namespace kavrix::tools
