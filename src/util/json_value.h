#ifndef KAVRIX_UTIL_JSON_VALUE_H_
#define KAVRIX_UTIL_JSON_VALUE_H_

#include <json/value.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Parses JSON and reads its values. Nothing here throws, except for failed allocations.
namespace kavrix::JsonUtil {

// Parses `text` with ReadStrictly of util/strict_json.h. On false `error` has the message.
bool ParseStrictly(const std::string& text, Json::Value& root, std::string& error);

// Returns the member `key` of `object`; null when `object` is not an object or has no such member.
const Json::Value* Find(const Json::Value& object, std::string_view key);

// The value when it is stored as an integer that fits a signed 32-bit int; 5.0 is stored as a real.
std::optional<int> AsInt(const Json::Value& value);

// The value when it is stored as an integer that fits 64 signed bits.
std::optional<std::int64_t> AsInteger(const Json::Value& value);

// The bytes of the value, NUL bytes included, when it is a string; they live as long as the value.
std::optional<std::string_view> AsText(const Json::Value& value);

// Returns the value as one line of JSON, cut after 60 characters, for messages.
std::string ToText(const Json::Value& value);

}  // namespace kavrix::JsonUtil

#endif  // KAVRIX_UTIL_JSON_VALUE_H_
