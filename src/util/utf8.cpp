#include "util/utf8.h"

#include <cstdint>

#include "util/eight_bytes.h"

namespace kavrix {
namespace {

struct LeadByte {
  std::size_t length;  // of the whole character; 0: no character begins with this byte
  // The range of its second byte, narrower than that of the others where an overlong form, a surrogate or a
  // number above U+10FFFF would begin.
  unsigned char second_low = 0x80;
  unsigned char second_high = 0xBF;
};

LeadByte LeadByteOf(unsigned char byte) {
  if (byte < 0x80) return {1};
  if (byte < 0xC2) return {0};
  if (byte < 0xE0) return {2};
  if (byte < 0xF0) {
    return {3, static_cast<unsigned char>(byte == 0xE0 ? 0xA0 : 0x80),
            static_cast<unsigned char>(byte == 0xED ? 0x9F : 0xBF)};
  }
  if (byte > 0xF4) return {0};
  return {4, static_cast<unsigned char>(byte == 0xF0 ? 0x90 : 0x80),
          static_cast<unsigned char>(byte == 0xF4 ? 0x8F : 0xBF)};
}

std::size_t AsciiLength(std::string_view text) {
  std::size_t length = 0;
  for (; length + 8 <= text.size(); length += 8) {
    const std::uint64_t marks = eight_bytes::MarkNonAscii(eight_bytes::Load(text.data() + length));
    if (marks != 0) return length + eight_bytes::BytesBefore(marks);
  }
  while (length < text.size() && static_cast<unsigned char>(text[length]) < 0x80) ++length;
  return length;
}

bool IsUnescapedEverywhere(char c) { return c >= 0x20 && c < 0x7F && c != '"' && c != '\\'; }

}  // namespace

Utf8Piece NextUtf8(std::string_view text) {
  if (text.empty()) return {0, 0, true};
  const auto first = static_cast<unsigned char>(text[0]);
  const LeadByte lead = LeadByteOf(first);
  if (lead.length == 0) return {1, 0, false};
  if (lead.length == 1) return {1, first, true};

  char32_t code_point = first & (0x7Fu >> lead.length);
  for (std::size_t i = 1; i < lead.length; ++i) {
    if (i == text.size()) return {i, 0, false};
    const auto byte = static_cast<unsigned char>(text[i]);
    const unsigned char low = i == 1 ? lead.second_low : 0x80;
    const unsigned char high = i == 1 ? lead.second_high : 0xBF;
    if (byte < low || byte > high) return {i, 0, false};
    code_point = code_point << 6 | (byte & 0x3Fu);
  }
  return {lead.length, code_point, true};
}

bool IsControl(char32_t c) {
  return c < 0x20 || (c >= 0x7F && c < 0xA0) || c == 0x061C || c == 0x200E || c == 0x200F ||
         (c >= 0x2028 && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069);
}

std::size_t ValidUtf8Length(std::string_view text) {
  std::size_t length = 0;
  for (;;) {
    length += AsciiLength(text.substr(length));
    const Utf8Piece piece = NextUtf8(text.substr(length));
    if (!piece.is_valid || piece.length == 0) return length;
    length += piece.length;
  }
}

std::size_t UnescapedLength(std::string_view text) {
  std::size_t length = 0;
  for (; length + 8 <= text.size(); length += 8) {
    const std::uint64_t word = eight_bytes::Load(text.data() + length);
    const std::uint64_t marks = eight_bytes::MarkBelow(word, 0x20) | eight_bytes::Mark(word, 0x7F) |
                                eight_bytes::Mark(word, '"') | eight_bytes::Mark(word, '\\') |
                                eight_bytes::MarkNonAscii(word);
    if (marks != 0) return length + eight_bytes::BytesBefore(marks);
  }
  while (length < text.size() && IsUnescapedEverywhere(text[length])) ++length;
  return length;
}

std::string Excerpt(std::string_view text) {
  constexpr int kMostCharacters = 60;
  std::size_t length = 0;
  for (int i = 0; i < kMostCharacters; ++i) length += NextUtf8(text.substr(length)).length;
  return std::string(text.substr(0, length)) + (length < text.size() ? "..." : "");
}

std::string ToValidUtf8(std::string_view text) {
  std::string valid;
  valid.reserve(text.size());
  for (;;) {
    const std::size_t length = ValidUtf8Length(text);
    valid += text.substr(0, length);
    text.remove_prefix(length);
    if (text.empty()) return valid;
    valid += "\xEF\xBF\xBD";
    text.remove_prefix(NextUtf8(text).length);
  }
}

}  // namespace kavrix
