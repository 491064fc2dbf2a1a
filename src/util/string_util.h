#ifndef KAVRIX_UTIL_STRING_UTIL_H_
#define KAVRIX_UTIL_STRING_UTIL_H_

#include <string>
#include <vector>

namespace kavrix {

enum class WhitespaceHandling { kKeep = 0, kTrim = 1 };
enum class SplitResult { kAll = 0, kNonEmpty = 1 };

// Cuts `input` at every occurrence of any character of `separators`. With the zero options white space is
// kept and empty fields are kept: "a_b_" on "_" gives "a", "b" and "". An empty input gives one empty field.
// kTrim drops ASCII blanks at both ends of a field; kNonEmpty leaves out fields that are empty (after
// trimming).
std::vector<std::string> SplitString(const std::string& input, const std::string& separators,
                                     WhitespaceHandling whitespace, SplitResult result);

// True when the whole of `text` is a decimal integer, with an optional leading '+' or '-', that fits a signed
// 32-bit int; it is stored in `value` then. Blanks are not accepted. On false `value` is unchanged.
bool StringToInt(const std::string& text, int* value);

// A copy with A to Z replaced by a to z; every other byte, those of UTF-8 sequences included, is unchanged.
std::string ToLowerASCII(const std::string& text);

}  // namespace kavrix

#endif  // KAVRIX_UTIL_STRING_UTIL_H_
