#include "util/string_util.h"

#include <charconv>
#include <cstdint>
#include <limits>
#include <system_error>

namespace kavrix {
namespace {

constexpr std::string_view kBlanks = " \t\n\v\f\r";

std::string_view Trimmed(std::string_view text) {
  const std::size_t begin = text.find_first_not_of(kBlanks);
  if (begin == std::string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

// from_chars reads '-' but not '+'.
std::string_view WithoutPlus(std::string_view text) {
  const bool plus = text.size() > 1 && text[0] == '+' && text[1] != '-';
  return plus ? text.substr(1) : text;
}

}  // namespace

std::vector<std::string> SplitString(const std::string& input, const std::string& separators,
                                     WhitespaceHandling whitespace, SplitResult result) {
  std::vector<std::string> fields;
  std::size_t begin = 0;
  for (;;) {
    const std::size_t end = input.find_first_of(separators, begin);
    std::string_view field = std::string_view(input).substr(begin, end - begin);
    if (whitespace == WhitespaceHandling::kTrim) field = Trimmed(field);
    if (result == SplitResult::kAll || !field.empty()) fields.emplace_back(field);
    if (end == std::string::npos) return fields;
    begin = end + 1;
  }
}

bool StringToInt(std::string_view text, int* value) {
  text = WithoutPlus(text);
  int number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || stop != end) return false;
  *value = number;
  return true;
}

int LeadingInt(std::string_view text) {
  const std::size_t start = text.find_first_not_of(kBlanks);
  if (start == std::string_view::npos) return 0;
  text = WithoutPlus(text.substr(start));
  std::int64_t number = 0;
  const std::errc error = std::from_chars(text.data(), text.data() + text.size(), number).ec;
  if (error == std::errc::result_out_of_range) {
    number =
        text[0] == '-' ? std::numeric_limits<std::int64_t>::min() : std::numeric_limits<std::int64_t>::max();
  }
  return static_cast<int>(number);
}

std::string ToLowerASCII(const std::string& text) {
  std::string lower = text;
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

}  // namespace kavrix
