#include "inspect/compare.h"

#include <algorithm>
#include <utility>

#include "inspect/example.h"
#include "inspect/json_writer.h"
#include "inspect/members.h"

namespace kavrix::inspect {
namespace {

constexpr const char* kNull = "null";

std::string TextAsJson(std::string_view text) {
  JsonWriter json;
  json.Text(text);
  return json.Take();
}

std::string ValueAsJson(const FlatMember& member) {
  JsonWriter json;
  WriteValue(json, member);
  return json.Take();
}

std::string KindAsJson(const Decoded& decoded) {
  return decoded.kind ? TextAsJson(MarkerOf(*decoded.kind).substr(1)) : std::string(kNull);
}

std::string ExceptionAsJson(const Decoded& decoded) {
  return decoded.exception ? TextAsJson(*decoded.exception) : std::string(kNull);
}

// Places the members of one side, in their order.
class OrderCounter {
 public:
  MemberOrder Next(const std::string& path) {
    const std::size_t bracket = path.find('[');
    const std::string name = path.substr(0, bracket);
    if (name != name_) {
      name_ = name;
      order_ = {std::get<0>(order_) + 1, 0, 0};
      return order_;
    }
    const std::string item = path.substr(0, path.find(']'));
    const bool is_same_item = item == item_;
    item_ = item;
    auto& [place, item_place, place_in_item] = order_;
    if (!is_same_item) ++item_place;
    place_in_item = is_same_item ? place_in_item + 1 : 0;
    return order_;
  }

 private:
  std::string name_;
  std::string item_;
  MemberOrder order_ = {0, 0, 0};  // 0 is the kind's
};

constexpr MemberOrder kOrderOfKind = {0, 0, 0};
constexpr MemberOrder kOrderOfException = {static_cast<std::size_t>(-1), 0, 0};

// Pairs the members of two sides by their paths, and calls visit(order, old, new) for each; null for what one
// side lacks.
template <class Member, class PathOf, class Visit>
void ForEachPair(const std::vector<Member>& old_members, const std::vector<Member>& new_members,
                 PathOf path_of, Visit visit) {
  std::map<std::string, const Member*> unpaired;
  for (const Member& member : new_members) unpaired.emplace(path_of(member), &member);
  OrderCounter old_orders;
  for (const Member& member : old_members) {
    const MemberOrder order = old_orders.Next(path_of(member));
    const auto found = unpaired.find(path_of(member));
    visit(order, &member, found == unpaired.end() ? nullptr : found->second);
    if (found != unpaired.end()) unpaired.erase(found);
  }
  OrderCounter new_orders;
  for (const Member& member : new_members) {
    const MemberOrder order = new_orders.Next(path_of(member));
    if (unpaired.count(path_of(member)) != 0) visit(order, nullptr, &member);
  }
}

void AddTexts(const std::string& member, const std::string& old_value, const std::string& new_value,
              MemberOrder order, std::vector<Difference>& differences) {
  if (old_value != new_value) differences.push_back({member, old_value, new_value, order, {}, {}});
}

void WriteDifferences(JsonWriter& json, const std::vector<Difference>& differences) {
  json.Key("differs");
  json.BeginArray();
  for (const Difference& difference : differences) {
    json.BeginObject();
    json.Text("member", difference.member);
    json.Key("old");
    json.Json(difference.old_value);
    json.Key("new");
    json.Json(difference.new_value);
    json.EndObject();
  }
  json.EndArray();
}

std::size_t PlaceOfKind(std::string_view kind) {
  const auto has_kind = [&](std::string_view marker) { return marker.substr(1) == kind; };
  return static_cast<std::size_t>(std::find_if(kBubbleMarkers.begin(), kBubbleMarkers.end(), has_kind) -
                                  kBubbleMarkers.begin());
}

}  // namespace

std::vector<Difference> Compare(const Decoded& old_result, const Decoded& new_result) {
  std::vector<Difference> differences;
  AddTexts("kind", KindAsJson(old_result), KindAsJson(new_result), kOrderOfKind, differences);
  const auto members_of = [](const Decoded& decoded) {
    return decoded.descriptor == nullptr ? std::vector<FlatMember>() : Members(*decoded.descriptor);
  };
  const auto add = [&](MemberOrder order, const FlatMember* before, const FlatMember* after) {
    if (before != nullptr && after != nullptr && *before == *after) return;
    const auto value_of = [](const FlatMember* member) {
      return member == nullptr ? std::string(kNull) : ValueAsJson(*member);
    };
    const auto copy_of = [](const FlatMember* member) {
      return member == nullptr ? std::nullopt : std::make_optional(*member);
    };
    const std::string& path = (before == nullptr ? after : before)->path;
    differences.push_back({path, value_of(before), value_of(after), order, copy_of(before), copy_of(after)});
  };
  const bool are_same = old_result.descriptor != nullptr && new_result.descriptor != nullptr &&
                        *old_result.descriptor == *new_result.descriptor;
  if (!are_same) {
    ForEachPair(
        members_of(old_result), members_of(new_result), [](const FlatMember& member) { return member.path; },
        add);
  }
  AddTexts("exception", ExceptionAsJson(old_result), ExceptionAsJson(new_result), kOrderOfException,
           differences);
  return differences;
}

std::vector<Difference> Compare(const DecodedLine& old_line, const DecodedLine& new_line) {
  std::vector<Difference> differences;
  AddTexts("kind", old_line.kind, new_line.kind, kOrderOfKind, differences);
  const auto add = [&](MemberOrder order, const DecodedLine::Member* before,
                       const DecodedLine::Member* after) {
    const auto value_of = [](const DecodedLine::Member* member) {
      return member == nullptr ? std::string(kNull) : member->value;
    };
    AddTexts((before == nullptr ? after : before)->path, value_of(before), value_of(after), order,
             differences);
  };
  ForEachPair(
      old_line.members, new_line.members, [](const DecodedLine::Member& member) { return member.path; }, add);
  AddTexts("exception", old_line.exception, new_line.exception, kOrderOfException, differences);
  return differences;
}

std::string DifferencesLine(const std::string& resource_name, const std::vector<Difference>& differences) {
  JsonWriter json;
  json.BeginObject();
  json.Text("resource_name", resource_name);
  WriteDifferences(json, differences);
  json.EndObject();
  return json.TakeLine();
}

std::string DifferencesLine(const std::string& old_name, const std::string& new_name,
                            const std::vector<Difference>& differences) {
  JsonWriter json;
  json.BeginObject();
  json.Key("resource_names");
  json.BeginArray();
  json.Text(old_name);
  json.Text(new_name);
  json.EndArray();
  WriteDifferences(json, differences);
  json.EndObject();
  return json.TakeLine();
}

void DifferenceSummary::Add(std::string_view kind, const std::string& resource_name,
                            const std::vector<Difference>& differences) {
  for (const Difference& difference : differences) {
    Group& group = groups_[{PlaceOfKind(kind), difference.order, difference.member, difference.old_value,
                            difference.new_value}];
    if (group.names == 0 || IsBetterExample(resource_name, group.example)) group.example = resource_name;
    ++group.names;
  }
}

std::string DifferenceSummary::Lines() const {
  std::string lines;
  for (const auto& [key, group] : groups_) {
    const auto& [kind, order, member, old_value, new_value] = key;
    JsonWriter json;
    json.BeginObject();
    json.Key("kind");
    kind < kBubbleMarkers.size() ? json.Text(kBubbleMarkers[kind].substr(1)) : json.Null();
    json.Text("member", member);
    json.Key("old");
    json.Json(old_value);
    json.Key("new");
    json.Json(new_value);
    json.Key("names");
    json.Integer(static_cast<std::int64_t>(group.names));
    json.Text("example", group.example);
    json.EndObject();
    lines += json.TakeLine();
  }
  return lines;
}

}  // namespace kavrix::inspect
