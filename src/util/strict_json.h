#ifndef KAVRIX_UTIL_STRICT_JSON_H_
#define KAVRIX_UTIL_STRICT_JSON_H_

#include <json/value.h>

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

// JSON as its standard (RFC 8259) has it, for what people write: configurations and the fields of bubbles.
// Payloads are read leniently, by JsonUtil::ParseObject. No locale changes what is read here.
namespace kavrix::JsonUtil {

// The deepest value that ReadStrictly takes; the root is at depth 1, a value inside n arrays and objects at
// n + 1.
inline constexpr std::size_t kDeepestStrictValue = 256;

// The text is no strict JSON. The message has the line, the column (in characters, both from 1), what was
// expected there and what was found.
class JsonError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Reads a text that is one object or array, in UTF-8. A key twice, nesting over kDeepestStrictValue and half
// surrogate pairs are errors. Integers of 64 bits are stored as such, other numbers as the nearest double,
// infinity for those beyond the largest. Every value has its place in the text. Throws JsonError.
Json::Value ReadStrictly(std::string_view text);

// What stands in `text` at the place of a value that ReadStrictly read from it.
std::string_view SourceOf(const Json::Value& value, std::string_view text);

}  // namespace kavrix::JsonUtil

#endif  // KAVRIX_UTIL_STRICT_JSON_H_
