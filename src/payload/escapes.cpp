#include "payload/escapes.h"

namespace kavrix {
namespace {

constexpr std::size_t kUnitLength = 6;  // of \uXXXX
constexpr char32_t kNoUnit = 0xFFFFFFFF;

int HexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  const char lower = static_cast<char>(c | 0x20);
  return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

// Returns the UTF-16 unit that `text` begins with as \uXXXX.
char32_t UnitAt(std::string_view text) {
  if (text.size() < kUnitLength || text[0] != '\\' || text[1] != 'u') return kNoUnit;
  char32_t unit = 0;
  for (std::size_t i = 2; i < kUnitLength; ++i) {
    const int digit = HexDigit(text[i]);
    if (digit < 0) return kNoUnit;
    unit = unit * 16 + static_cast<char32_t>(digit);
  }
  return unit;
}

bool IsHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool IsLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

void AppendUtf8(std::string& text, char32_t c) {
  const auto append = [&text](char32_t byte) { text += static_cast<char>(byte); };
  if (c < 0x80) return append(c);
  if (c < 0x800) {
    append(0xC0 | c >> 6);
  } else {
    if (c < 0x10000) {
      append(0xE0 | c >> 12);
    } else {
      append(0xF0 | c >> 18);
      append(0x80 | (c >> 12 & 0x3F));
    }
    append(0x80 | (c >> 6 & 0x3F));
  }
  append(0x80 | (c & 0x3F));
}

// Returns the character of a short escape, by its letter; NUL when it is none.
char ShortEscape(char letter) {
  switch (letter) {
    case '"':
    case '\\':
    case '/':
      return letter;
    case 'b':
      return '\b';
    case 'f':
      return '\f';
    case 'n':
      return '\n';
    case 'r':
      return '\r';
    case 't':
      return '\t';
    default:
      return '\0';
  }
}

}  // namespace

std::size_t EscapeLength(std::string_view text) {
  if (text.size() < 2) return 0;
  if (text[1] != 'u') return ShortEscape(text[1]) == '\0' ? 0 : 2;
  const char32_t unit = UnitAt(text);
  if (unit == kNoUnit || IsLowSurrogate(unit)) return 0;
  if (!IsHighSurrogate(unit)) return kUnitLength;
  return IsLowSurrogate(UnitAt(text.substr(kUnitLength))) ? 2 * kUnitLength : 0;
}

void AppendUnescaped(std::string& text, std::string_view contents) {
  for (;;) {
    const std::size_t plain = contents.find('\\');
    text += contents.substr(0, plain);
    if (plain == std::string_view::npos) return;
    contents.remove_prefix(plain);
    const std::size_t length = EscapeLength(contents);
    if (length == 2) {
      text += ShortEscape(contents[1]);
    } else if (length == kUnitLength) {
      AppendUtf8(text, UnitAt(contents));
    } else {
      const char32_t high = UnitAt(contents);
      const char32_t low = UnitAt(contents.substr(kUnitLength));
      AppendUtf8(text, 0x10000 + ((high & 0x3FF) << 10 | (low & 0x3FF)));
    }
    contents.remove_prefix(length);
  }
}

}  // namespace kavrix
