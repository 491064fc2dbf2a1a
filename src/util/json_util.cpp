#include "util/json_util.h"

#include "util/json_value.h"

namespace kavrix::JsonUtil {

std::string StringValue(const Json::Value& object, const std::string& key, const std::string& default_value) {
  const Json::Value* const member = Find(object, key);
  const auto text = member != nullptr ? AsText(*member) : std::nullopt;
  return text ? std::string(*text) : default_value;
}

int IntValue(const Json::Value& object, const std::string& key, int default_value) {
  const Json::Value* const member = Find(object, key);
  const auto number = member != nullptr ? AsInt(*member) : std::nullopt;
  return number.value_or(default_value);
}

}  // namespace kavrix::JsonUtil
