#include "bench/plain/plain_fields.h"

#include <json/reader.h>

#include <cstring>
#include <limits>

#include "map_resource/map_resource_manager.h"
#include "util/json_nesting.h"
#include "util/json_value.h"

// Some JsonCpp versions mark the legacy reader deprecated.
#if defined(__GNUC__)
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#endif

namespace kavrix::plain {

std::string AfterPrefix(const std::string& resource_name) {
  return resource_name.substr(std::strlen(MapResourceManager::kavrix_resource_prefix));
}

std::string BetweenPrefixAndMarker(const std::string& resource_name, std::size_t marker_length) {
  const std::size_t prefix_length = std::strlen(MapResourceManager::kavrix_resource_prefix);
  return resource_name.substr(prefix_length, resource_name.size() - prefix_length - marker_length);
}

std::string BetweenBraces(const std::string& resource_name) {
  const std::string prefix = MapResourceManager::kavrix_resource_prefix;
  std::string text = resource_name;
  if (text.find(prefix) == 0) text = text.substr(prefix.size());
  const std::size_t begin = text.find('{');
  const std::size_t end = text.rfind('}');
  if (begin == std::string::npos || end == std::string::npos || end < begin) return "";
  return text.substr(begin, end - begin + 1);
}

std::vector<std::string> Split(const std::string& text, char separator) {
  std::vector<std::string> fields(1);
  for (const char c : text) {
    if (c == separator) {
      fields.emplace_back();
    } else {
      fields.back() += c;
    }
  }
  return fields;
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

bool Parse(const std::string& text, Json::Value& root) {
  if (JsonUtil::IsNestedDeeperThan(text, JsonUtil::kDeepestValue)) return false;
  try {
    Json::Reader reader;
    return reader.parse(text, root, false) && root.isObject();
  } catch (const Json::Exception&) {
    return false;
  }
}

std::string TextOr(const Json::Value& object, const std::string& key, const std::string& current) {
  if (!object.isObject() || !object.isMember(key)) return current;
  return object[key].isString() ? object[key].asString() : current;
}

int IntOr(const Json::Value& object, const std::string& key, int current) {
  if (!object.isObject() || !object.isMember(key)) return current;
  const Json::Value& value = object[key];
  const bool is_integer = value.type() == Json::intValue || value.type() == Json::uintValue;
  return is_integer && value.isInt() ? value.asInt() : current;
}

void ReadDirection(const std::string& tail, BubbleDrawDescriptor& descriptor) {
  const std::vector<std::string> fields = Split(tail, '.');
  int direction = 0;
  if (fields.size() == 2 && ToInt(fields[0], direction)) {
    descriptor.direction = static_cast<std::int16_t>(direction);
  }
}

}  // namespace kavrix::plain
