#ifndef KAVRIX_UTIL_UTF8_H_
#define KAVRIX_UTIL_UTF8_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace kavrix {

// What stands at the beginning of a text: one character, or bytes that are none.
struct Utf8Piece {
  std::size_t length;   // in bytes; 0 at the end of the text
  char32_t code_point;  // 0 for what is no character
  bool is_valid;
};

// A piece that is not valid is the longest beginning of a character that is cut short or goes on wrongly, at
// least one byte: what Unicode recommends to replace by one U+FFFD. Surrogates and overlong forms are not
// valid.
Utf8Piece NextUtf8(std::string_view text);

// C0, DEL, C1, and the line and direction controls that would let a text rearrange what stands around it.
bool IsControl(char32_t c);

// How many bytes at the beginning are valid characters; the size of the text when all are.
std::size_t ValidUtf8Length(std::string_view text);

// The first 60 characters, and "..." where the text goes on. For messages.
std::string Excerpt(std::string_view text);

// A copy with every piece that is not valid replaced by U+FFFD.
std::string ToValidUtf8(std::string_view text);

}  // namespace kavrix

#endif  // KAVRIX_UTIL_UTF8_H_
