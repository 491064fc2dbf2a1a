#include "util/json_value.h"

#include <json/writer.h>

#include "util/strict_json.h"
#include "util/utf8.h"

namespace kavrix::JsonUtil {

bool ParseStrictly(const std::string& text, Json::Value& root, std::string& error) {
  try {
    root = ReadStrictly(text);
    return true;
  } catch (const JsonError& json_error) {
    error = json_error.what();
    return false;
  }
}

const Json::Value* Find(const Json::Value& object, std::string_view key) {
  if (!object.isObject()) return nullptr;
  return object.find(key.data(), key.data() + key.size());
}

std::optional<int> AsInt(const Json::Value& value) {
  const std::optional<std::int64_t> number = AsInteger(value);
  if (!number || *number != static_cast<int>(*number)) return std::nullopt;
  return static_cast<int>(*number);
}

// isInt64() and the like are also true for reals with an integral value; only the stored type tells them
// apart.
std::optional<std::int64_t> AsInteger(const Json::Value& value) {
  const Json::ValueType type = value.type();
  const bool is_integer = type == Json::intValue || (type == Json::uintValue && value.isInt64());
  if (!is_integer) return std::nullopt;
  return value.asInt64();
}

std::optional<std::string_view> AsText(const Json::Value& value) {
  const char* begin = nullptr;
  const char* end = nullptr;
  if (value.getString(&begin, &end)) return std::string_view(begin, static_cast<std::size_t>(end - begin));
  if (!value.isString()) return std::nullopt;
  return std::string_view();  // a string value made from a null pointer
}

std::string ToText(const Json::Value& value) {
  Json::StreamWriterBuilder builder;
  builder["indentation"] = "";
  builder["emitUTF8"] = true;
  return Excerpt(Json::writeString(builder, value));
}

}  // namespace kavrix::JsonUtil
