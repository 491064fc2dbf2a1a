#include "tests/support/carried_fields.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "tests/reference/utf8.h"

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
  const bool is_integer = value.type() == Json::intValue || value.type() == Json::uintValue;
  return is_integer && value.isInt64() && value.asInt64() >= least && value.asInt64() <= most;
}

// Decides which values the names of one kind can carry.
class Carrier {
 public:
  explicit Carrier(const BubbleKindInfo& info) : info_(info), keys_(KeysOf(info)) {}

  bool CarriesObject(const std::string& path, const Json::Value& object) const {
    if (!object.isObject()) return false;
    std::size_t known = 0;
    for (const KeyInfo& key : KeysUnder(keys_, path)) {
      if (!object.isMember(key.key)) continue;
      if (!CarriesValue(path, key, object[key.key])) return false;
      ++known;
    }
    return known == object.size();
  }

 private:
  bool CarriesValue(const std::string& path, const KeyInfo& key, const Json::Value& value) const {
    if (key.type == "text") return CarriesText(key.key, value);
    if (key.type == "integer") {
      return IsIntegerFrom(value, std::numeric_limits<std::int32_t>::min(),
                           std::numeric_limits<std::int32_t>::max());
    }
    if (key.type == "integer, low 16 bits") return IsIntegerFrom(value, -32768, 32767);
    if (key.type == "flag") return IsIntegerFrom(value, 0, 1);
    if (!value.isArray()) return false;
    return std::all_of(value.begin(), value.end(), [&](const Json::Value& element) {
      return key.type == "array of texts" ? CarriesText(key.key, element)
                                          : CarriesObject(path + key.key + "[].", element);
    });
  }

  // A JSON object escapes what a field cannot hold: separators, and markers that the search finds before the
  // kind's own.
  bool CarriesText(const std::string& key, const Json::Value& value) const {
    if (!value.isString()) return false;
    const std::string text = value.asString();
    if (reference::ValidUtf8Bytes(text) != text.size()) return false;
    if (IsJsonKind(info_)) return true;
    const bool ends_content = key == "sub_text" && text.find('|') != std::string::npos;
    return text.find_first_of("_@") == std::string::npos && !ends_content && !HoldsEarlierMarker(text);
  }

  bool HoldsEarlierMarker(const std::string& text) const {
    for (const BubbleKind kind : kBubbleKinds) {
      if (MarkerOf(kind) == info_.marker) return false;
      if (text.find(MarkerOf(kind)) != std::string::npos) return true;
    }
    return false;
  }

  const BubbleKindInfo& info_;
  std::vector<KeyInfo> keys_;
};

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

bool CanBeCarried(const BubbleKindInfo& info, const Json::Value& fields) {
  return Carrier(info).CarriesObject("", fields);
}

}  // namespace kavrix::test
