#include "tests/reference/utf8.h"

#include <algorithm>
#include <cstdint>

namespace kavrix::reference {
namespace {

// Of 0xxxxxxx, 110xxxxx, 1110xxxx and 11110xxx; 0 for other bytes.
std::size_t LengthAfter(unsigned char first) {
  if ((first & 0x80) == 0x00) return 1;
  if ((first & 0xE0) == 0xC0) return 2;
  if ((first & 0xF0) == 0xE0) return 3;
  return (first & 0xF8) == 0xF0 ? 4 : 0;
}

// The bits that the bytes carry: the first those after its zero, each other one six.
std::uint32_t Bits(const std::string& bytes) {
  std::uint32_t bits = static_cast<unsigned char>(bytes[0]);
  if (bytes.size() > 1) bits &= 0x7FU >> bytes.size();
  for (std::size_t i = 1; i < bytes.size(); ++i) {
    bits = bits * 64 + (static_cast<unsigned char>(bytes[i]) & 0x3FU);
  }
  return bits;
}

// Whether a character of `length` bytes has a number in the range: one that needs so many bytes, is at most
// U+10FFFF, and no surrogate. A range that begins among the surrogates may end after them.
bool HoldsCharacter(std::size_t length, std::uint32_t low, std::uint32_t high) {
  constexpr std::uint32_t kLeast[] = {0, 0x80, 0x800, 0x10000};
  constexpr std::uint32_t kMost[] = {0x7F, 0x7FF, 0xFFFF, 0x10FFFF};
  low = std::max(low, kLeast[length - 1]);
  high = std::min(high, kMost[length - 1]);
  if (low >= 0xD800 && low <= 0xDFFF) low = 0xE000;
  return low <= high;
}

// Whether some character begins with the bytes, of which there is at least one.
bool BeginsCharacter(const std::string& bytes) {
  const std::size_t length = LengthAfter(static_cast<unsigned char>(bytes[0]));
  if (length < bytes.size()) return false;
  for (std::size_t i = 1; i < bytes.size(); ++i) {
    if ((bytes[i] & 0xC0) != 0x80) return false;
  }
  const std::size_t missing = length - bytes.size();
  return HoldsCharacter(length, Bits(bytes + std::string(missing, '\x80')),
                        Bits(bytes + std::string(missing, '\xBF')));
}

}  // namespace

Utf8Unit FirstUtf8Unit(const std::string& text) {
  if (text.empty()) return {};
  std::size_t length = 1;
  if (!BeginsCharacter(text.substr(0, 1))) return {1, 0, false};
  while (length < text.size() && BeginsCharacter(text.substr(0, length + 1))) ++length;
  if (length < LengthAfter(static_cast<unsigned char>(text[0]))) return {length, 0, false};
  return {length, Bits(text.substr(0, length)), true};
}

std::string ReplaceInvalidUtf8(const std::string& text) {
  std::string replaced;
  for (std::size_t at = 0; at < text.size();) {
    const Utf8Unit unit = FirstUtf8Unit(text.substr(at, 4));
    replaced += unit.is_valid ? text.substr(at, unit.length) : "\xEF\xBF\xBD";
    at += unit.length;
  }
  return replaced;
}

std::size_t ValidUtf8Bytes(const std::string& text) {
  std::size_t at = 0;
  while (at < text.size()) {
    const Utf8Unit unit = FirstUtf8Unit(text.substr(at, 4));
    if (!unit.is_valid) break;
    at += unit.length;
  }
  return at;
}

}  // namespace kavrix::reference
