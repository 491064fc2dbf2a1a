#ifndef KAVRIX_UTIL_JSON_VALUE_H_
#define KAVRIX_UTIL_JSON_VALUE_H_

#include <json/value.h>

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Parses JSON and reads its values. Nothing here throws, except for failed allocations.
namespace kavrix::JsonUtil {

// The deepest value that ParseObject accepts; the root is at depth 1, a value inside n arrays and objects at
// n + 1. Newer versions of JsonCpp stop there; older ones go on to 1000, too deep for a thread with a small
// stack.
inline constexpr std::size_t kDeepestValue = 256;

// Parses `text` with JsonCpp's legacy reader, which accepts comments, and anything after the root. True when
// the root is an object, which is then in `root`; do not read `root` on false. A value deeper than
// kDeepestValue is an error.
bool ParseObject(std::string_view text, Json::Value& root);

// Parses `text` with ReadStrictly of util/strict_json.h. On false `error` has the message.
bool ParseStrictly(const std::string& text, Json::Value& root, std::string& error);

// Returns the member `key` of `object`; null when `object` is not an object or has no such member.
const Json::Value* Find(const Json::Value& object, std::string_view key);

struct Member {
  bool Has(std::string_view name) const { return std::string_view(key, key_length) == name; }

  // Without initialisers, so that an array of them costs nothing to make.
  const char* key;
  std::size_t key_length;
  const Json::Value* value;
};

// Fills `members` and returns their number; nullopt when `object` has more than N. A value that is not an
// object has none.
template <std::size_t N>
std::optional<std::size_t> ListMembers(const Json::Value& object, std::array<Member, N>& members) {
  if (!object.isObject()) return 0;
  const std::size_t count = object.size();
  if (count > N) return std::nullopt;
  Json::Value::const_iterator it = object.begin();
  for (std::size_t i = 0; i < count; ++i, ++it) {
    const char* key_end = nullptr;
    const char* const key = it.memberName(&key_end);
    members[i] = {key, static_cast<std::size_t>(key_end - key), &*it};
  }
  return count;
}

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
