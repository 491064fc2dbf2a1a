#include "inspect/members.h"

#include <cstddef>
#include <set>

namespace kavrix::inspect {
namespace {

bool IsStyleValue(const FlatMember& member) {
  return std::holds_alternative<float>(member.value) || std::holds_alternative<std::uint32_t>(member.value);
}

// Whether the member is the length of the pair or triple of style values that follows it.
bool IsLengthOfStyleValues(const std::vector<FlatMember>& members, std::size_t index) {
  return index + 1 < members.size() && members[index + 1].path == members[index].path + "[0]" &&
         IsStyleValue(members[index + 1]);
}

struct ValueWriter {
  void operator()(std::int64_t number) const { json.Integer(number); }
  void operator()(std::uint32_t word) const { json.Integer(word); }
  void operator()(MarkerType type) const { json.Integer(static_cast<std::int64_t>(type)); }
  void operator()(bool flag) const { json.Flag(flag); }
  void operator()(float real) const { json.Real(real); }
  void operator()(const std::string& text) const { json.Text(text); }

  JsonWriter& json;
};

}  // namespace

std::vector<FlatMember> Members(const BubbleDrawDescriptor& descriptor) {
  const std::vector<FlatMember> all = FlatMembers(descriptor, ListLengths::kIncluded);
  std::vector<FlatMember> members;
  std::set<std::string> paths;
  for (std::size_t i = 0; i < all.size(); ++i) {
    if (IsLengthOfStyleValues(all, i)) continue;
    const bool hides = !paths.insert(all[i].path).second;
    members.push_back({(hides ? "own." : "") + all[i].path, all[i].value});
  }
  return members;
}

bool SaysSomething(const FlatMember& member) {
  return !IsDefault(member) || std::holds_alternative<MarkerType>(member.value);
}

void WriteValue(JsonWriter& json, const FlatMember& member) { std::visit(ValueWriter{json}, member.value); }

}  // namespace kavrix::inspect
