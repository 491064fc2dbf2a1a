#ifndef KAVRIX_UTIL_JSON_VALUE_H_
#define KAVRIX_UTIL_JSON_VALUE_H_

#include <json/value.h>

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Reads JSON texts and the values in them, as the parsers do. Nothing here throws but for failed allocations.
namespace kavrix::JsonUtil {

// The deepest value that ParseObject takes; the root is at depth 1, a value inside n arrays and objects at n
// + 1. Newer versions of JsonCpp stop there, older ones go to 1000, for which a thread with a small stack has
// no room.
inline constexpr std::size_t kDeepestValue = 256;

// Parses `text` with the accept set of JsonCpp's legacy reader: comments pass, and so does text after the
// root. True when the root is an object, which is then in `root`; on false `root` holds nothing to read. A
// text with a value deeper than kDeepestValue does not parse.
bool ParseObject(std::string_view text, Json::Value& root);

// Parses `text`, an object or an array, as the JSON standard has it; no locale changes what is read. On false
// `error` says in which line and column, what was expected and what was found. util/strict_json.h has more.
bool ParseStrictly(const std::string& text, Json::Value& root, std::string& error);

// The member `key` of `object`; null when `object` is no object or has no such member.
const Json::Value* Find(const Json::Value& object, std::string_view key);

struct Member {
  bool Has(std::string_view name) const { return std::string_view(key, key_length) == name; }

  // Plain members, so that an array of them costs nothing to make.
  const char* key;
  std::size_t key_length;
  const Json::Value* value;
};

// The members of `object`, filled into `members`, when they are at most N; then their number. nullopt when
// there are more. A value that is no object has none.
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

// The value when it is stored as an integer that fits a signed 32-bit int. A real such as 5.0 is none.
std::optional<int> AsInt(const Json::Value& value);

// The value when it is stored as an integer of any size that 64 signed bits hold.
std::optional<std::int64_t> AsInteger(const Json::Value& value);

// The value when it is a number of any kind.
std::optional<double> AsDouble(const Json::Value& value);

// The bytes of the value, NUL included, when it is a text; they live as long as the value.
std::optional<std::string_view> AsText(const Json::Value& value);

// The value as one line of JSON text, cut after 60 characters, for messages.
std::string ToText(const Json::Value& value);

}  // namespace kavrix::JsonUtil

#endif  // KAVRIX_UTIL_JSON_VALUE_H_
