#ifndef KAVRIX_PAYLOAD_JSON_NESTING_H_
#define KAVRIX_PAYLOAD_JSON_NESTING_H_

#include <cstddef>
#include <string_view>

namespace kavrix {

// Whether JsonCpp's legacy reader, given `text`, would come to a value deeper than `limit`. The root is at
// depth 1, a value inside n arrays and objects at depth n + 1. Brackets in strings, in comments and after the
// root do not count. An error after such a value makes no difference: the reader goes down before it gets
// there.
bool IsNestedDeeperThan(std::string_view text, std::size_t limit);

}  // namespace kavrix

#endif  // KAVRIX_PAYLOAD_JSON_NESTING_H_
