#include "util/fields.h"

#include <charconv>
#include <cstdint>
#include <limits>
#include <system_error>

namespace kavrix {
namespace {

constexpr std::string_view kBlanks = " \t\n\v\f\r";

// from_chars reads '-' but not '+'.
std::string_view WithoutPlus(std::string_view text) {
  const bool plus = text.size() > 1 && text[0] == '+' && text[1] != '-';
  return plus ? text.substr(1) : text;
}

}  // namespace

bool ReadInt(std::string_view text, int& value) {
  text = WithoutPlus(text);
  int number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || stop != end) return false;
  value = number;
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

std::string_view Trimmed(std::string_view text) {
  const std::size_t begin = text.find_first_not_of(kBlanks);
  if (begin == std::string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

}  // namespace kavrix
