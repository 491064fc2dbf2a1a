#ifndef KAVRIX_UTIL_STRICT_JSON_H_
#define KAVRIX_UTIL_STRICT_JSON_H_

#include <json/value.h>

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

// Reads JSON as RFC 8259 defines it, for what people write: configurations and the fields of bubbles.
// Payloads are read leniently, by ParseTree of payload/json_tree.h. The locale makes no difference here.
namespace kavrix::JsonUtil {

// The deepest value that ReadStrictly accepts; the root is at depth 1, a value inside n arrays and objects at
// n + 1.
inline constexpr std::size_t kDeepestStrictValue = 256;

// The text is not strict JSON. The message has the line and the column (in characters), both from 1, what was
// expected there and what was found.
class JsonError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Reads one object or array, in UTF-8. Duplicate keys, nesting over kDeepestStrictValue and half surrogate
// pairs are errors. Integers that fit 64 bits are stored as integers, other numbers as the nearest double, or
// infinity beyond the largest. Every value holds its place in the text, for SourceOf. Throws JsonError.
Json::Value ReadStrictly(std::string_view text);

// Returns the part of `text` that ReadStrictly read as `value`.
std::string_view SourceOf(const Json::Value& value, std::string_view text);

}  // namespace kavrix::JsonUtil

#endif  // KAVRIX_UTIL_STRICT_JSON_H_
