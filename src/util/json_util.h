#ifndef KAVRIX_UTIL_JSON_UTIL_H_
#define KAVRIX_UTIL_JSON_UTIL_H_

#include <json/value.h>

#include <string>

#include "export.h"

/// Reads members of a JSON object by the rules of resource names: one that is absent or of another type
/// counts as the default.
namespace kavrix::JsonUtil {

/// Returns the member `key` of `object` when it exists and is a string, else `default_value`.
KAVRIX_EXPORT std::string StringValue(const Json::Value& object, const std::string& key,
                                      const std::string& default_value);

/// Returns the member `key` of `object` when it exists and is stored as an integer that fits a signed 32-bit
/// int, else `default_value`: 5.0 and 3000000000 count as absent.
KAVRIX_EXPORT int IntValue(const Json::Value& object, const std::string& key, int default_value);

}  // namespace kavrix::JsonUtil

#endif  // KAVRIX_UTIL_JSON_UTIL_H_
