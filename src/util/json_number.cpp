#include "util/json_number.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace kavrix::JsonUtil {
namespace {

// Writes 1.5 as 15e-1, because the C library takes the decimal point from its locale.
std::string WithoutPoint(std::string_view number) {
  constexpr std::int64_t kFar = 1'000'000'000'000;  // zero or infinity for any text that fits into memory
  const std::size_t end_of_digits = std::min(number.find_first_of("eE"), number.size());
  std::string digits(number.substr(0, end_of_digits));
  number.remove_prefix(std::min(end_of_digits + 1, number.size()));

  std::int64_t exponent = 0;
  const bool is_negative = number.substr(0, 1) == "-";
  for (const char c : number) {
    if (c >= '0' && c <= '9') exponent = std::min(exponent * 10 + (c - '0'), kFar);
  }
  if (is_negative) exponent = -exponent;

  const std::size_t point = digits.find('.');
  if (point != std::string::npos) {
    exponent -= static_cast<std::int64_t>(digits.size() - point - 1);
    digits.erase(point, 1);
  }
  return digits + "e" + std::to_string(exponent);
}

}  // namespace

float NearestFloat(std::string_view number) { return std::strtof(WithoutPoint(number).c_str(), nullptr); }

double NearestDouble(std::string_view number) { return std::strtod(WithoutPoint(number).c_str(), nullptr); }

}  // namespace kavrix::JsonUtil
