#include "tests/support/carried_fields.h"

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "util/utf8.h"

namespace kavrix::test {
namespace {

std::vector<KeyInfo> KeysOf(const BubbleKindInfo& info) {
  KeyLister lister;
  info.codec.list_keys(lister);
  return lister.keys();
}

// Returns the keys of an object under `path`, such as "cameras[].", without that path.
std::vector<KeyInfo> KeysUnder(const std::vector<KeyInfo>& keys, const std::string& path) {
  std::vector<KeyInfo> found;
  for (const KeyInfo& key : keys) {
    const bool is_here =
        key.key.compare(0, path.size(), path) == 0 && key.key.find("[].", path.size()) == std::string::npos;
    if (is_here) found.push_back({key.key.substr(path.size()), key.type, key.rule});
  }
  return found;
}

// An absent "mode" inverts the flag in a JSON object and leaves it false in a list of fields.
Json::Value DefaultOf(const KeyInfo& key, bool is_json) {
  if (key.type == "text") return "";
  if (key.type.find("array") == 0) return Json::arrayValue;
  if (key.rule == "true when 0") return is_json ? 0 : 1;
  const bool says_when_absent = key.rule.find(" when absent") != std::string::npos;
  return says_when_absent ? std::stoi(key.rule) : 0;
}

Json::Value Completed(const std::vector<KeyInfo>& keys, const std::string& path, const Json::Value& object,
                      bool is_json) {
  Json::Value completed = object;
  for (const KeyInfo& key : KeysUnder(keys, path)) {
    if (!completed.isMember(key.key)) completed[key.key] = DefaultOf(key, is_json);
    if (key.type != "array of objects") continue;
    for (Json::Value& element : completed[key.key]) {
      element = Completed(keys, path + key.key + "[].", element, is_json);
    }
  }
  return completed;
}

bool IsIntegerFrom(const Json::Value& value, std::int64_t least, std::int64_t most) {
  return value.type() == Json::intValue && value.asInt64() >= least && value.asInt64() <= most;
}

bool IsGoodText(const Json::Value& value, bool is_json) {
  if (!value.isString()) return false;
  const std::string text = value.asString();
  return ValidUtf8Length(text) == text.size() && (is_json || text.find_first_of("_@|.") == std::string::npos);
}

bool IsGoodObject(const std::vector<KeyInfo>& keys, const std::string& path, const Json::Value& object,
                  bool is_json);

bool IsGoodValue(const std::vector<KeyInfo>& keys, const std::string& path, const KeyInfo& key,
                 const Json::Value& value, bool is_json) {
  if (key.type == "text") return IsGoodText(value, is_json);
  if (key.type == "integer") {
    return IsIntegerFrom(value, std::numeric_limits<std::int32_t>::min(),
                         std::numeric_limits<std::int32_t>::max());
  }
  if (key.type == "integer, low 16 bits") return IsIntegerFrom(value, -32768, 32767);
  if (key.type == "flag") return IsIntegerFrom(value, 0, 1);
  if (!value.isArray()) return false;
  for (const Json::Value& element : value) {
    const bool is_good = key.type == "array of texts"
                             ? IsGoodText(element, is_json)
                             : IsGoodObject(keys, path + key.key + "[].", element, is_json);
    if (!is_good) return false;
  }
  return true;
}

bool IsGoodObject(const std::vector<KeyInfo>& keys, const std::string& path, const Json::Value& object,
                  bool is_json) {
  if (!object.isObject()) return false;
  std::size_t known = 0;
  for (const KeyInfo& key : KeysUnder(keys, path)) {
    if (!object.isMember(key.key)) continue;
    if (!IsGoodValue(keys, path, key, object[key.key], is_json)) return false;
    ++known;
  }
  return known == object.size();
}

// Outside scene 0 a traffic bubble keeps only whether it is navigating.
void MakeNavModeCanonical(Json::Value& fields) {
  if (!fields.isMember("nav_mode")) return;
  const bool navigates = fields["scene"].asInt() == 0 || fields["nav_mode"].asInt() == 1;
  fields["nav_mode"] = navigates ? 1 : 0;
}

}  // namespace

bool IsJsonKind(const BubbleKindInfo& info) { return std::string_view(info.grammar).substr(0, 4) == "JSON"; }

Json::Value CompleteFields(const BubbleKindInfo& info, const Json::Value& fields) {
  Json::Value completed = Completed(KeysOf(info), "", fields, IsJsonKind(info));
  MakeNavModeCanonical(completed);
  return completed;
}

bool MustBeTaken(const BubbleKindInfo& info, const Json::Value& fields) {
  return IsGoodObject(KeysOf(info), "", fields, IsJsonKind(info));
}

}  // namespace kavrix::test
