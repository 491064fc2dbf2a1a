#include "inspect/explain.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <map>
#include <utility>

#include "inspect/byte_shares.h"
#include "inspect/explain_name.h"
#include "inspect/kind_model.h"
#include "inspect/members.h"
#include "inspect/name_reading.h"
#include "inspect/problems.h"
#include "inspect/style_choice.h"
#include "inspect/style_origins.h"

namespace kavrix::inspect {
namespace {

// The first index of a path, such as 0 of "cameras[0].type".
std::optional<std::size_t> IndexIn(const std::string& path) {
  const std::size_t bracket = path.find('[');
  if (bracket == std::string::npos) return std::nullopt;
  std::size_t index = 0;
  std::from_chars(path.data() + bracket + 1, path.data() + path.size(), index);
  return index;
}

class Explainer {
 public:
  Explainer(const std::string& name, EntryPoint entry_point, const TransformSetup& setup)
      : reading_(name, entry_point), read_(ReadKeysOf(reading_.trace())), setup_(setup) {}

  Explanation Explain() {
    explanation_.resource_name = reading_.name();
    explanation_.has_failed = reading_.HasFailed();
    explanation_.is_plain = reading_.IsPlain();
    explanation_.problems = FindProblems(reading_);
    if (reading_.info() != nullptr) {
      if (reading_.entry_point() == EntryPoint::kBubble) explanation_.kind = reading_.info()->Name();
      ExplainMembers();
      ListSteers();
    }
    ShareOutBytes(reading_, read_, explanation_);
    return std::move(explanation_);
  }

 private:
  const TracedKey* FindRead(const std::string& key, std::optional<std::size_t> item) const {
    return FindIn(read_, key, item);
  }

  void ExplainMembers() {
    const auto descriptor = DecodeQuietly(setup_, reading_.entry_point(), reading_.name());
    if (descriptor == nullptr) return;
    const StyleOrigins origins = FindStyleOrigins(reading_.name(), reading_.entry_point());
    const auto choice =
        origins.empty() ? std::map<std::string, std::vector<std::string>>() : FindStyleChoice(reading_);
    for (FlatMember& member : Members(*descriptor)) {
      ExplainedMember& explained = explanation_.members.emplace_back();
      explained.member = std::move(member);
      const std::string& path = explained.member.path;
      const auto cell = origins.find(path);
      if (cell == origins.end()) {
        ExplainUnstyled(explained);
      } else if (cell->second.record.empty()) {
        explained.from = Origin::kContext;
        explained.key = "multi_light_type";
      } else {
        explained.from = Origin::kConfig;
        explained.record = cell->second.record;
        explained.number = cell->second.number;
        const auto chosen = choice.find(path);
        if (chosen != choice.end()) explained.chosen_by = chosen->second;
      }
    }
  }

  // A member that neither configuration nor context gave.
  void ExplainUnstyled(ExplainedMember& explained) {
    const std::vector<std::string> keys = KeysOf(explained.member.path);
    if (keys.size() > 1) {
      explained.from = Origin::kComputed;
      const auto is_read = [&](const std::string& key) { return FindRead(key, std::nullopt) != nullptr; };
      std::copy_if(keys.begin(), keys.end(), std::back_inserter(explained.of), is_read);
    } else if (keys.size() == 1) {
      ExplainByKey(explained, keys.front());
    } else if (IsConstant(explained.member)) {
      explained.from = Origin::kKind;
    }
  }

  // The keys whose values a member holds. The items of a list of strings belong to the list's key.
  std::vector<std::string> KeysOf(const std::string& path) const {
    const KindModel& model = ModelOf(*reading_.info());
    const std::string pattern = WithoutIndexes(path);
    const auto found = model.keys_of_member.find(pattern);
    if (found != model.keys_of_member.end()) return found->second;
    if (pattern.size() < 2 || pattern.compare(pattern.size() - 2, 2, "[]") != 0) return {};
    std::vector<std::string> keys = KeysOf(pattern.substr(0, pattern.size() - 2));
    for (std::string& key : keys) key += "[]";
    return keys;
  }

  void ExplainByKey(ExplainedMember& explained, const std::string& key) {
    const KeyInfo* const info = ModelOf(*reading_.info()).Find(key);
    if (const TracedKey* const read = FindRead(key, IndexIn(explained.member.path))) {
      explained.from = Origin::kName;
      explained.key =
          key.substr(0, key.size() - (info == nullptr ? 2 : 0));  // without the "[]" of an element
      explained.bytes = reading_.RangeOf(read->value_bytes);
      explained.rule = RuleOf(*read, info);
      if (read->found == Found::kOnlyThere && explained.bytes) explained.bytes->end = explained.bytes->begin;
      return;
    }
    const bool inverts = info != nullptr && info->rule == "true when 0";
    const auto& object = reading_.trace().object;
    if (inverts && object && object->is_object) explained.rule = "inverted: no " + key;
  }

  static std::string RuleOf(const TracedKey& read, const KeyInfo* info) {
    if (read.found == Found::kOnlyThere) return "true when there";
    if (read.found == Found::kLosesBits) return "low 16 bits";
    if (read.found == Found::kNoDigits || read.found == Found::kLeadingDigits) return info->rule;
    const bool has_rule = info != nullptr && info->type == "flag";
    return has_rule ? info->rule : "";
  }

  // Whether the parser wrote the value itself.
  bool IsConstant(const FlatMember& member) const {
    if (!IsDefault(member)) return true;
    const auto* const code = std::get_if<std::int64_t>(&member.value);
    return member.path == "bubble_kind" && reading_.info()->kind_code == *code;
  }

  // The keys that are read and that no member holds.
  void ListSteers() {
    const KindModel& model = ModelOf(*reading_.info());
    for (const KeyInfo& key : model.keys) {
      const auto holds_it = [&](const auto& entry) {
        const std::vector<std::string>& keys = entry.second;
        return std::find(keys.begin(), keys.end(), key.key) != keys.end();
      };
      const bool is_held = std::any_of(model.keys_of_member.begin(), model.keys_of_member.end(), holds_it);
      const TracedKey* const read = is_held ? nullptr : FindRead(key.key, std::nullopt);
      if (read == nullptr) continue;
      explanation_.steers.push_back({key.key, reading_.RangeOf(read->value_bytes)});
    }
  }

  const NameReading reading_;
  const ReadKeys read_;
  const TransformSetup& setup_;
  Explanation explanation_;
};

}  // namespace

Explanation ExplainName(const std::string& resource_name, EntryPoint entry_point,
                        const TransformSetup& setup) {
  return Explainer(resource_name, entry_point, setup).Explain();
}

Explanation ExplainBubbleName(const std::string& resource_name, const TransformSetup& setup) {
  return ExplainName(resource_name, EntryPoint::kBubble, setup);
}

Explanation ExplainMarkerName(const std::string& resource_name, const TransformSetup& setup) {
  return ExplainName(resource_name, EntryPoint::kMarker, setup);
}

std::vector<Problem> CheckBubbleName(const std::string& resource_name) {
  return ProblemsOf(resource_name, EntryPoint::kBubble);
}

std::vector<Problem> CheckMarkerName(const std::string& resource_name) {
  return ProblemsOf(resource_name, EntryPoint::kMarker);
}

}  // namespace kavrix::inspect
