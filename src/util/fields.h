#ifndef KAVRIX_UTIL_FIELDS_H_
#define KAVRIX_UTIL_FIELDS_H_

#include <array>
#include <cstddef>
#include <string_view>

// Cuts strings into fields and reads numbers from them, without copies. The functions of string_util.h call
// these.
namespace kavrix {

// Takes the first field off `rest`, which is cut at any character of `separators`. False when it was the last
// one: `rest` is then empty.
inline bool TakeField(std::string_view& rest, std::string_view separators, std::string_view& field) {
  const std::size_t end =
      separators.size() == 1 ? rest.find(separators.front()) : rest.find_first_of(separators);
  field = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  return end != std::string_view::npos;
}

// The first N fields of a string cut at one separator character, blanks and empty fields kept. The fields are
// views of that string.
template <std::size_t N>
struct Fields {
  std::array<std::string_view, N> at;
  std::size_t count = 0;  // the number of fields; N + 1 when there are more than N
};

template <std::size_t N>
Fields<N> SplitFields(std::string_view text, char separator) {
  Fields<N> fields;
  for (bool more = true; more;) {
    if (fields.count == N) {
      fields.count = N + 1;
      return fields;
    }
    more = TakeField(text, {&separator, 1}, fields.at[fields.count++]);
  }
  return fields;
}

// True when the whole of `text` is a decimal integer that fits a signed 32-bit int, with an optional leading
// '+' or '-' and no blanks; stores it in `value`. On false `value` is unchanged.
bool ReadInt(std::string_view text, int& value);

// Reads as atoi does where long has 64 bits, on every machine: the value of the decimal digits after blanks
// and an optional sign, 0 without digits. Clamps the value to 64 bits and returns the low 32.
int LeadingInt(std::string_view text);

// Returns `text` without the ASCII blanks at both ends.
std::string_view Trimmed(std::string_view text);

}  // namespace kavrix

#endif  // KAVRIX_UTIL_FIELDS_H_
