#ifndef KAVRIX_UTIL_STRING_UTIL_H_
#define KAVRIX_UTIL_STRING_UTIL_H_

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kavrix {

enum class WhitespaceHandling { kKeep = 0, kTrim = 1 };
enum class SplitResult { kAll = 0, kNonEmpty = 1 };

// Cuts `input` at every occurrence of any character of `separators`. With the zero options whitespace is kept
// and empty fields are kept: "a_b_" on "_" gives "a", "b" and "". An empty input gives one empty field.
// kTrim drops ASCII blanks at both ends of a field; kNonEmpty leaves out fields that are empty (after
// trimming).
std::vector<std::string> SplitString(const std::string& input, const std::string& separators,
                                     WhitespaceHandling whitespace, SplitResult result);

// True when the whole of `text` is a decimal integer, with an optional leading '+' or '-', that fits a signed
// 32-bit int; it is stored in `value` then. Blanks are not accepted. On false `value` is unchanged.
bool StringToInt(std::string_view text, int* value);

// What atoi makes of `text` where long has 64 bits, on every machine: the value of the decimal digits after
// blanks and an optional sign, 0 where there are none. A value beyond 64 bits is held at the nearest end of
// that range; the low 32 bits are returned.
int LeadingInt(std::string_view text);

// A copy with A to Z replaced by a to z; every other byte, those of UTF-8 sequences included, is unchanged.
std::string ToLowerASCII(const std::string& text);

// The first N fields of a text cut at one separator character, whitespace and empty fields kept. The fields
// are views into that text.
template <std::size_t N>
struct Fields {
  std::array<std::string_view, N> at;
  std::size_t count = 0;  // the number of fields; anything above N is counted as N + 1
};

template <std::size_t N>
Fields<N> SplitFields(std::string_view text, char separator) {
  Fields<N> fields;
  for (;;) {
    const std::size_t end = text.find(separator);
    if (fields.count == N) {
      fields.count = N + 1;
      return fields;
    }
    fields.at[fields.count++] = text.substr(0, end);
    if (end == std::string_view::npos) return fields;
    text.remove_prefix(end + 1);
  }
}

}  // namespace kavrix

#endif  // KAVRIX_UTIL_STRING_UTIL_H_
