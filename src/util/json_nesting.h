#ifndef KAVRIX_UTIL_JSON_NESTING_H_
#define KAVRIX_UTIL_JSON_NESTING_H_

#include <cstddef>
#include <string_view>

namespace kavrix::JsonUtil {

// Whether JsonCpp's legacy reader, given `text`, would come to a value deeper than `limit`. The root is at
// depth 1, a value inside n arrays and objects at depth n + 1. Brackets in texts, in comments and behind the
// root do not count. A text that nests so deep and is broken further on counts too: the reader goes down
// before it finds out.
bool IsNestedDeeperThan(std::string_view text, std::size_t limit);

}  // namespace kavrix::JsonUtil

#endif  // KAVRIX_UTIL_JSON_NESTING_H_
