#ifndef KAVRIX_UTIL_JSON_NUMBER_H_
#define KAVRIX_UTIL_JSON_NUMBER_H_

#include <string_view>

namespace kavrix::JsonUtil {

// The float or double nearest to a JSON number, under every locale; infinity for numbers beyond the largest.
float NearestFloat(std::string_view number);
double NearestDouble(std::string_view number);

}  // namespace kavrix::JsonUtil

#endif  // KAVRIX_UTIL_JSON_NUMBER_H_
