#ifndef KAVRIX_UTIL_STRING_UTIL_H_
#define KAVRIX_UTIL_STRING_UTIL_H_

#include <string>
#include <vector>

#include "export.h"

namespace kavrix {

/// What SplitString does with ASCII blanks at both ends of a field.
enum class WhitespaceHandling {
  kKeep = 0,  ///< Keeps them.
  kTrim = 1,  ///< Drops them.
};

/// Which fields SplitString returns.
enum class SplitResult {
  kAll = 0,       ///< All, the empty ones too.
  kNonEmpty = 1,  ///< Those that are not empty (after trimming).
};

/// Cuts `input` at every character that is one of `separators`. With kKeep and kAll, "a_b_" on "_" gives "a",
/// "b" and "". An empty input gives one empty field.
KAVRIX_EXPORT std::vector<std::string> SplitString(const std::string& input, const std::string& separators,
                                                   WhitespaceHandling whitespace, SplitResult result);

/// Returns true when the whole of `text` is a decimal integer that fits a signed 32-bit int, with an optional
/// leading '+' or '-' and no blanks; stores it in `value`. On false `value` is unchanged.
KAVRIX_EXPORT bool StringToInt(const std::string& text, int* value);

/// Returns a copy with A to Z replaced by a to z; every other byte, also of UTF-8 sequences, is unchanged.
KAVRIX_EXPORT std::string ToLowerASCII(const std::string& text);

}  // namespace kavrix

#endif  // KAVRIX_UTIL_STRING_UTIL_H_
