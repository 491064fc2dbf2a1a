#ifndef KAVRIX_UTIL_UTF8_H_
#define KAVRIX_UTIL_UTF8_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace kavrix {

// The beginning of a text: one character, or bytes that are none.
struct Utf8Piece {
  std::size_t length;   // in bytes; 0 at the end of the text
  char32_t code_point;  // 0 when not valid
  bool is_valid;
};

// Returns the first piece of `text`. A piece that is not valid is as much as could begin a character, at
// least one byte: what Unicode recommends to replace by one U+FFFD. Surrogates and overlong forms are not
// valid.
Utf8Piece NextUtf8(std::string_view text);

// True for C0, DEL, C1, and the line and direction controls with which a text could rearrange what is around
// it.
bool IsControl(char32_t c);

// Returns how many bytes at the beginning are valid characters; the size of the text when all are.
std::size_t ValidUtf8Length(std::string_view text);

// Returns how many bytes at the beginning are printable ASCII without `"` and `\`, which neither JSON nor a
// log line escapes.
std::size_t UnescapedLength(std::string_view text);

// Returns the first 60 characters, and "..." if there are more. For messages.
std::string Excerpt(std::string_view text);

// Returns a copy with every piece that is not valid replaced by U+FFFD.
std::string ToValidUtf8(std::string_view text);

}  // namespace kavrix

#endif  // KAVRIX_UTIL_UTF8_H_
