#include "inspect/kind_model.h"

#include <json/value.h>

#include <algorithm>
#include <array>
#include <memory>
#include <mutex>
#include <set>

#include "inspect/members.h"

namespace kavrix::inspect {
namespace {

Json::Value BaseFor(const KeyInfo& key) {
  if (key.type == "flag") return 0;
  if (key.type == "text") return "a";
  if (key.type == "array of texts" || key.type == "array of objects") {
    Json::Value array(Json::arrayValue);
    array.append(key.type == "array of texts" ? Json::Value("a") : Json::Value(Json::objectValue));
    return array;
  }
  return 1;
}

// Another value of the same type. An array gets another element.
Json::Value Changed(Json::Value value) {
  if (value.isArray()) {
    value.append(value[0]);
    return value;
  }
  return value.isString() ? Json::Value("b") : Json::Value(value.asInt() == 0 ? 1 : value.asInt() + 1);
}

// The place of a key's value in the fields of a name: for a key of a list's objects in the first of them.
Json::Value& PlaceOf(const KeyInfo& key, Json::Value& fields) {
  const std::size_t index = key.key.find("[].");
  if (index == std::string::npos) return fields[key.key];
  return fields[key.key.substr(0, index)][0][key.key.substr(index + 3)];
}

std::vector<FlatMember> MembersOf(const BubbleKindInfo& info, const Json::Value& fields) {
  TransformSetup setup;
  setup.context = std::make_shared<KavrixContext>("");
  const auto descriptor = DecodeQuietly(setup, info.entry_point, info.codec.encode_fields(fields));
  return Members(*descriptor);
}

KindModel MakeModel(const BubbleKindInfo& info) {
  KindModel model;
  KeyLister lister;
  info.codec.list_keys(lister);
  model.keys = lister.keys();
  Json::Value base(Json::objectValue);
  for (const KeyInfo& key : model.keys) PlaceOf(key, base) = BaseFor(key);
  const std::vector<FlatMember> before = MembersOf(info, base);
  for (const KeyInfo& key : model.keys) {
    Json::Value changed = base;
    Json::Value& place = PlaceOf(key, changed);
    place = Changed(place);
    const std::vector<FlatMember> after = MembersOf(info, changed);
    // A list that grew has more members after its length.
    for (std::size_t i = 0; i < before.size() && before[i].path == after[i].path; ++i) {
      if (before[i] == after[i]) continue;
      model.keys_of_member[WithoutIndexes(before[i].path)].push_back(key.key);
    }
  }
  return model;
}

}  // namespace

const KeyInfo* KindModel::Find(const std::string& key) const {
  const auto is_it = [&](const KeyInfo& info) { return info.key == key; };
  const auto found = std::find_if(keys.begin(), keys.end(), is_it);
  return found == keys.end() ? nullptr : &*found;
}

std::string WithoutIndexes(const std::string& path) {
  std::string pattern;
  bool in_index = false;
  for (const char c : path) {
    if (c == ']') in_index = false;
    if (!in_index) pattern += c;
    if (c == '[') in_index = true;
  }
  return pattern;
}

const KindModel& ModelOf(const BubbleKindInfo& info) {
  static std::mutex mutex;
  static std::map<const BubbleKindInfo*, KindModel> models;
  const std::lock_guard<std::mutex> lock(mutex);
  const auto found = models.find(&info);
  return found != models.end() ? found->second : models.emplace(&info, MakeModel(info)).first->second;
}

}  // namespace kavrix::inspect
