#include "tests/reference/fields.h"

#include <cstring>
#include <limits>

#include "map_resource/map_resource_manager.h"

namespace kavrix::reference {

std::string AfterPrefix(const std::string& name) {
  return name.substr(std::strlen(MapResourceManager::kavrix_resource_prefix));
}

// In a name too short for both, the count wraps around to more than there is.
std::string BetweenPrefixAndMarker(const std::string& name, std::size_t marker_length) {
  const std::size_t prefix_length = std::strlen(MapResourceManager::kavrix_resource_prefix);
  return name.substr(prefix_length, name.size() - prefix_length - marker_length);
}

std::vector<std::string> Split(const std::string& text, char separator) {
  std::vector<std::string> pieces(1);
  for (const char c : text) {
    if (c == separator) {
      pieces.emplace_back();
    } else {
      pieces.back() += c;
    }
  }
  return pieces;
}

bool ToInt(const std::string& text, int& value) {
  const bool has_sign = !text.empty() && (text[0] == '-' || text[0] == '+');
  const std::string digits = has_sign ? text.substr(1) : text;
  if (digits.empty()) return false;
  long long number = 0;
  for (const char c : digits) {
    if (c < '0' || c > '9') return false;
    number = number * 10 + (c - '0');
    if (number > std::numeric_limits<int>::max() + 1LL) return false;
  }
  if (text[0] == '-') number = -number;
  if (number > std::numeric_limits<int>::max()) return false;
  value = static_cast<int>(number);
  return true;
}

void ReadDirection(const std::string& tail, BubbleDrawDescriptor& descriptor) {
  const std::vector<std::string> pieces = Split(tail, '.');
  int direction = 0;
  if (pieces.size() == 2 && ToInt(pieces[0], direction)) descriptor.direction = Low16(direction);
}

void ReadMode(const std::string& field, BubbleDrawDescriptor& descriptor) {
  int mode = 0;
  if (ToInt(field, mode)) descriptor.mode_flag = mode == 0;
}

}  // namespace kavrix::reference
