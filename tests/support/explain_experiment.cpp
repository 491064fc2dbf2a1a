#include "tests/support/explain_experiment.h"

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <utility>

#include "inspect/explain.h"
#include "inspect/members.h"
#include "inspect/style_origins.h"
#include "tests/reference/structure.h"

namespace kavrix::test {
namespace {

using inspect::ByteRange;
using inspect::ExplainedMember;
using inspect::Origin;
using Paths = std::set<std::string>;

// Every value differs from every other.
struct Values {
  BubbleLayerConfigContainer config;
  MarkerBubbleConfig marker_bubble;
  std::int32_t multi_light_type = 3;
};

Values MakeValues() {
  Values values;
  std::uint32_t word = 0x3F800000;  // a float of 1
  const auto fill = [&](const char* name, auto& record) {
    record.name = name;
    for (std::size_t i = 1; i <= record.kValueCount; ++i) record.SetWord(i, word++);
  };
  ForEachStyleRecord(values.config, fill);
  fill("marker_bubble", values.marker_bubble);
  return values;
}

inspect::TransformSetup SetupOf(const Values& values) {
  inspect::TransformSetup setup;
  setup.context = std::make_shared<KavrixContext>("");
  setup.context->SetBubbleLayerConfig(values.config);
  setup.context->multi_light_type = values.multi_light_type;
  setup.marker_bubble = values.marker_bubble;
  return setup;
}

class Experiment {
 public:
  Experiment(const std::string& name, EntryPoint entry_point, ExperimentCounts& counts,
             ExperimentSample sample)
      : name_(name),
        entry_point_(entry_point),
        counts_(counts),
        sample_(sample),
        values_(MakeValues()),
        setup_(SetupOf(values_)) {
    explanation_ = entry_point == EntryPoint::kMarker ? inspect::ExplainMarkerName(name, setup_)
                                                      : inspect::ExplainBubbleName(name, setup_);
    structure_ = reference::StructureOf(name, entry_point == EntryPoint::kMarker);
    members_ = Decode(setup_, name);
  }

  std::vector<std::string> FindFaults() {
    CompareMembers();
    if (explanation_.is_plain) FindUncovered();
    for (std::size_t byte = 0; byte < name_.size(); ++byte) {
      if (sample_.Has(byte)) ReplaceByte(byte);
    }
    for (std::size_t i = 0; i < explanation_.members.size(); ++i) {
      if (sample_.Has(i)) ReplaceBytesOf(explanation_.members[i]);
    }
    ChangeStyles();
    return std::move(faults_);
  }

 private:
  std::vector<FlatMember> Decode(const inspect::TransformSetup& setup, const std::string& name) const {
    const auto descriptor = inspect::DecodeQuietly(setup, entry_point_, name);
    return descriptor == nullptr ? std::vector<FlatMember>() : inspect::Members(*descriptor);
  }

  Paths ChangedIn(const std::vector<FlatMember>& members) const {
    Paths changed;
    for (std::size_t i = 0; i < std::max(members.size(), members_.size()); ++i) {
      if (i >= members_.size()) {
        changed.insert(members[i].path);
      } else if (i >= members.size() || !(members[i] == members_[i])) {
        changed.insert(members_[i].path);
      }
    }
    return changed;
  }

  void Fault(const std::string& text) { faults_.push_back(text + " in " + name_); }

  void CompareMembers() {
    std::vector<FlatMember> explained;
    for (const ExplainedMember& member : explanation_.members) explained.push_back(member.member);
    if (explained != members_) Fault("the members are not those of the descriptor");
  }

  bool IsList(const ExplainedMember& member) const {
    const std::string item = member.member.path + "[";
    return member.key != "" && std::any_of(members_.begin(), members_.end(), [&](const FlatMember& other) {
             return other.path.compare(0, item.size(), item) == 0;
           });
  }
  static bool IsEmptyList(const ExplainedMember& member) {
    return member.bytes && std::holds_alternative<std::int64_t>(member.member.value) &&
           std::get<std::int64_t>(member.member.value) == 0 && member.bytes->end - member.bytes->begin >= 2 &&
           member.rule.empty();
  }

  // Every byte belongs to one range.
  void FindUncovered() {
    std::vector<ByteRange> ranges = explanation_.structure;
    for (const auto& ignored : explanation_.ignored) ranges.push_back(ignored.bytes);
    for (const auto& steer : explanation_.steers) ranges.push_back(*steer.bytes);
    for (const ExplainedMember& member : explanation_.members) {
      if (!member.bytes || IsList(member)) continue;
      if (name_[member.bytes->begin < name_.size() ? member.bytes->begin : 0] == '[' && IsEmptyList(member))
        continue;
      ranges.push_back(*member.bytes);
    }
    std::sort(ranges.begin(), ranges.end(), [](const ByteRange& a, const ByteRange& b) {
      return std::make_pair(a.begin, a.end) < std::make_pair(b.begin, b.end);
    });
    std::size_t end = 0;
    for (const ByteRange& range : ranges) {
      if (range.begin != end && range.begin != range.end)
        return Fault("the ranges do not cover the name once, at byte " + std::to_string(end));
      end = std::max(end, range.end);
    }
    if (end != name_.size()) Fault("the ranges end at byte " + std::to_string(end));
  }

  static bool Has(const std::optional<ByteRange>& bytes, std::size_t byte) {
    return bytes && bytes->begin <= byte && byte < bytes->end;
  }

  // What may change with a key: what it chooses, and what is computed from it.
  void AddInfluenceOf(const std::string& key, Paths& paths) const {
    for (const ExplainedMember& member : explanation_.members) {
      const auto has_key = [&](const std::vector<std::string>& keys) {
        return std::find(keys.begin(), keys.end(), key) != keys.end();
      };
      if (has_key(member.chosen_by) || has_key(member.of)) paths.insert(member.member.path);
    }
  }

  // The keys of a computed member have bytes that belong to another member, or to none.
  Paths InfluenceOf(std::size_t byte) const {
    Paths paths;
    for (const ExplainedMember& member : explanation_.members) {
      if (!Has(member.bytes, byte) || IsList(member)) continue;
      paths.insert(member.member.path);
      AddInfluenceOf(member.key, paths);
    }
    for (const auto& steer : explanation_.steers) {
      if (Has(steer.bytes, byte)) AddInfluenceOf(steer.key, paths);
    }
    return paths;
  }

  bool IsStructure(std::size_t byte) const {
    const auto& structure = explanation_.structure;
    return std::any_of(structure.begin(), structure.end(),
                       [&](const ByteRange& range) { return Has(range, byte); });
  }

  bool IsKnown(std::size_t byte) const {
    const auto has_byte = [&](const auto& entry) { return Has(entry.bytes, byte); };
    return explanation_.is_plain ||
           std::any_of(explanation_.members.begin(), explanation_.members.end(), has_byte);
  }

  // None when the replacement makes another sort of name.
  std::optional<Paths> ChangedWith(const std::string& replaced) const {
    ++counts_.replacements;
    if (reference::StructureOf(replaced, entry_point_ == EntryPoint::kMarker) == structure_)
      return ChangedIn(Decode(setup_, replaced));
    ++counts_.skipped;
    return std::nullopt;
  }

  void ReplaceByte(std::size_t byte) {
    const bool is_structure = IsStructure(byte);
    if (!IsKnown(byte)) return;
    const Paths allowed = InfluenceOf(byte);
    const bool is_digit = name_[byte] >= '0' && name_[byte] <= '9';
    // Nearly all replacements in the structure make another sort of name: one of each byte is enough.
    std::string_view replacements = is_digit ? "0123456789" : "xyzABCDEFG1";
    if (is_structure) replacements = replacements.substr(0, 1);
    for (const char c : replacements) {
      if (name_[byte] == c) continue;
      std::string replaced = name_;
      replaced[byte] = c;
      const std::optional<Paths> changed = ChangedWith(replaced);
      if (!changed) continue;
      for (const std::string& path : *changed) {
        if (allowed.count(path) == 0) {
          Fault("byte " + std::to_string(byte) + " as '" + c + "' changes " + path);
        }
      }
    }
  }

  // Numbers that fit, whatever the length, and texts.
  static std::vector<std::string> ReplacementsOf(std::size_t length) {
    std::vector<std::string> replacements;
    for (const char c : {'1', '2', '7', '0', 'x', 'y', 'z'}) replacements.emplace_back(length, c);
    for (const char c : {'1', '2', '3', '5', '9'}) replacements.push_back(std::string(length - 1, '0') + c);
    return replacements;
  }

  // Some replacement of all its bytes changes a member.
  void ReplaceBytesOf(const ExplainedMember& member) {
    if (!member.bytes || member.bytes->begin == member.bytes->end || IsList(member)) return;
    const std::size_t length = member.bytes->end - member.bytes->begin;
    bool is_any_counted = false;
    bool is_changed = false;
    for (const std::string& bytes : ReplacementsOf(length)) {
      std::string replaced = name_;
      replaced.replace(member.bytes->begin, length, bytes);
      if (replaced == name_) continue;
      const std::optional<Paths> changed = ChangedWith(replaced);
      if (!changed) continue;
      is_any_counted = true;
      is_changed |= changed->count(member.member.path) != 0;
    }
    if (is_any_counted && !is_changed) Fault("no replacement of its bytes changes " + member.member.path);
  }

  // Each value, changed in the configuration, changes exactly the members that are said to come from it.
  void ChangeStyles() {
    const auto check = [&](const Values& values, const std::string& record, std::size_t number) {
      Paths expected;
      for (const ExplainedMember& member : explanation_.members) {
        const bool is_of_cell =
            member.from == Origin::kConfig && member.record == record && member.number == number;
        if (is_of_cell || (record.empty() && member.from == Origin::kContext))
          expected.insert(member.member.path);
      }
      if (ChangedIn(Decode(SetupOf(values), name_)) != expected)
        Fault("other members change with value " + std::to_string(number) + " of \"" + record + "\"");
    };
    Values changed = values_;
    std::size_t place = 0;
    const auto change = [&](const char* record_name, auto& record) {
      const auto before = record;
      for (std::size_t number = 0; number <= record.kValueCount; ++number) {
        if (!sample_.Has(place++)) continue;
        if (number == 0) {
          record.name += "'";
        } else {
          record.SetWord(number, record.Word(number) + 0x10000);
        }
        check(changed, record_name, number);
        record = before;
      }
    };
    ForEachStyleRecord(changed.config, change);
    change("marker_bubble", changed.marker_bubble);
    changed.multi_light_type = 5;
    check(changed, "", 0);
  }

  const std::string& name_;
  const EntryPoint entry_point_;
  ExperimentCounts& counts_;
  const ExperimentSample sample_;
  const Values values_;
  const inspect::TransformSetup setup_;
  inspect::Explanation explanation_;
  std::string structure_;
  std::vector<FlatMember> members_;
  std::vector<std::string> faults_;
};

}  // namespace

std::vector<std::string> FindExplanationFaults(const std::string& name, EntryPoint entry_point,
                                               ExperimentCounts& counts, ExperimentSample sample) {
  return Experiment(name, entry_point, counts, sample).FindFaults();
}

}  // namespace kavrix::test
