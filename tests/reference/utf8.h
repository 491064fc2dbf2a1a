#ifndef KAVRIX_TESTS_REFERENCE_UTF8_H_
#define KAVRIX_TESTS_REFERENCE_UTF8_H_

#include <cstddef>
#include <string>

namespace kavrix::reference {

// The beginning of a text: one character, or the bytes that one U+FFFD replaces.
struct Utf8Unit {
  std::size_t length = 0;  // 0 at the end of the text
  char32_t code_point = 0;
  bool is_valid = true;
};

Utf8Unit FirstUtf8Unit(const std::string& text);

// All units, each one that is not valid replaced by U+FFFD.
std::string ReplaceInvalidUtf8(const std::string& text);

// How many bytes the units before the first one that is not valid have.
std::size_t ValidUtf8Bytes(const std::string& text);

}  // namespace kavrix::reference

#endif  // KAVRIX_TESTS_REFERENCE_UTF8_H_
