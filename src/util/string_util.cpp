#include "util/string_util.h"

#include <string_view>

#include "util/fields.h"

namespace kavrix {

std::vector<std::string> SplitString(const std::string& input, const std::string& separators,
                                     WhitespaceHandling whitespace, SplitResult result) {
  std::vector<std::string> fields;
  std::string_view rest = input;
  for (bool more = true; more;) {
    std::string_view field;
    more = TakeField(rest, separators, field);
    if (whitespace == WhitespaceHandling::kTrim) field = Trimmed(field);
    if (result == SplitResult::kAll || !field.empty()) fields.emplace_back(field);
  }
  return fields;
}

bool StringToInt(const std::string& text, int* value) { return ReadInt(text, *value); }

std::string ToLowerASCII(const std::string& text) {
  std::string lower = text;
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

}  // namespace kavrix
