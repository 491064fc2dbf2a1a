#include "inspect/compare.h"

#include <json/value.h>

#include <algorithm>
#include <set>
#include <utility>

#include "inspect/json_writer.h"
#include "inspect/members.h"
#include "util/json_value.h"
#include "util/strict_json.h"

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

// Takes the members of a "base" or "own" object apart as Members does.
class MemberReader {
 public:
  MemberReader(const std::string& line, DecodedLine& decoded) : line_(line), decoded_(decoded) {}

  // JsonCpp sorts the members of an object; their order in the line is that of their places.
  void AddAll(const Json::Value& object, const std::string& path) {
    std::vector<std::string> names = object.getMemberNames();
    std::sort(names.begin(), names.end(), [&](const std::string& a, const std::string& b) {
      return object[a].getOffsetStart() < object[b].getOffsetStart();
    });
    for (const std::string& name : names) Add(object[name], path + name);
  }

 private:
  void Add(const Json::Value& value, const std::string& path) {
    if (!value.isArray()) return AddValue(path, std::string(JsonUtil::SourceOf(value, line_)));
    const bool is_list = value.empty() || value[0].isObject() || value[0].isString();
    if (is_list) AddValue(path, std::to_string(value.size()));
    for (Json::ArrayIndex i = 0; i < value.size(); ++i) {
      const std::string item = path + "[" + std::to_string(i) + "]";
      if (value[i].isObject()) {
        AddAll(value[i], item + ".");
      } else {
        Add(value[i], item);
      }
    }
  }

  void AddValue(const std::string& path, std::string value) {
    const bool hides = !paths_.insert(path).second;
    decoded_.members.push_back({(hides ? "own." : "") + path, std::move(value)});
  }

  const std::string& line_;
  DecodedLine& decoded_;
  std::set<std::string> paths_;
};

const Json::Value& Part(const Json::Value& object, const char* key) {
  const Json::Value* const part = JsonUtil::Find(object, key);
  if (part == nullptr) throw CompareError(std::string("\"") + key + "\" is missing");
  return *part;
}

const Json::Value& ObjectIn(const Json::Value& object, const char* key) {
  const Json::Value& part = Part(object, key);
  if (!part.isObject()) throw CompareError(std::string("\"") + key + "\" is no object");
  return part;
}

// A string or null, as it stands.
std::string TextIn(const Json::Value& object, const char* key, const std::string& line) {
  const Json::Value& part = Part(object, key);
  if (!part.isString() && !part.isNull())
    throw CompareError(std::string("\"") + key + "\" is neither string nor null");
  return std::string(JsonUtil::SourceOf(part, line));
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

bool IsBetterExample(const std::string& name, const std::string& example) {
  return std::make_pair(name.size(), name) < std::make_pair(example.size(), example);
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

DecodedLine ReadDecodedLine(const std::string& line) {
  DecodedLine decoded;
  try {
    const Json::Value root = JsonUtil::ReadStrictly(line);
    const auto name = JsonUtil::AsText(Part(root, "resource_name"));
    if (!name) throw CompareError("\"resource_name\" is no string");
    decoded.resource_name = *name;
    decoded.kind = TextIn(root, "kind", line);
    decoded.exception = TextIn(root, "exception", line);
    if (Part(root, "descriptor").isNull()) return decoded;
    const Json::Value& descriptor = ObjectIn(root, "descriptor");
    MemberReader members(line, decoded);
    members.AddAll(ObjectIn(descriptor, "base"), "");
    members.AddAll(ObjectIn(descriptor, "own"), "");
  } catch (const JsonUtil::JsonError& error) {
    throw CompareError(error.what());
  }
  return decoded;
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
