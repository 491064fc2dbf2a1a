#include "inspect/style_choice.h"

#include <json/value.h>

#include <algorithm>
#include <utility>

#include "inspect/kind_model.h"

namespace kavrix::inspect {
namespace {

// The value that the name's integer or flag stands for; null for keys of other types.
Json::Value MeaningOf(const TracedKey& key, const KeyInfo& info) {
  if (info.type == "integer") return key.number;
  if (info.type == "integer, low 16 bits") return static_cast<std::int16_t>(key.number);
  if (info.type != "flag") return {};
  if (key.number == 0 || key.number == 1) return key.number;
  return info.rule == "true when 1" ? 0 : 1;
}

// The fields of the name that can choose a style.
Json::Value ChoosingFields(const NameReading& reading, const KindModel& model) {
  Json::Value fields(Json::objectValue);
  for (const TracedKey& key : reading.trace().keys) {
    const KeyInfo* const info = IsRead(key.found) && !key.item ? model.Find(key.key) : nullptr;
    if (info == nullptr) continue;
    const Json::Value value = MeaningOf(key, *info);
    if (!value.isNull()) fields[key.key] = value;
  }
  return fields;
}

}  // namespace

std::map<std::string, std::vector<std::string>> FindStyleChoice(const NameReading& reading) {
  const BubbleKindInfo& info = *reading.info();
  const KindModel& model = ModelOf(info);
  const Json::Value fields = ChoosingFields(reading, model);
  const auto origins_with = [&](const Json::Value& changed) {
    return FindStyleOrigins(info.codec.encode_fields(changed), info.entry_point);
  };
  const StyleOrigins origins = origins_with(fields);
  std::map<std::string, std::vector<std::string>> choosers_of_record;
  std::map<std::string, std::vector<std::string>> choosers_of_number;
  for (const KeyInfo& key : model.keys) {
    if (!fields.isMember(key.key)) continue;
    std::map<std::string, bool> chooses_record;  // by member; false: only the number
    for (const int other : {0, 1, 2}) {
      if (other == fields[key.key].asInt() || (key.type == "flag" && other > 1)) continue;
      Json::Value changed = fields;
      changed[key.key] = other;
      for (const auto& [member, cell] : origins_with(changed)) {
        const auto before = origins.find(member);
        if (before == origins.end() || before->second == cell) continue;
        chooses_record[member] |= before->second.record != cell.record;
      }
    }
    for (const auto& [member, record] : chooses_record) {
      (record ? choosers_of_record : choosers_of_number)[member].push_back(key.key);
    }
  }
  for (const auto& [member, keys] : choosers_of_number) {
    std::vector<std::string>& all = choosers_of_record[member];
    all.insert(all.end(), keys.begin(), keys.end());
  }
  return choosers_of_record;
}

}  // namespace kavrix::inspect
