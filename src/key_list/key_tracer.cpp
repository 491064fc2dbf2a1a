#include "key_list/key_tracer.h"

#include <algorithm>
#include <utility>

#include "util/fields.h"

namespace kavrix {
namespace {

bool IsInteger(std::string_view text) {
  if (!text.empty() && (text[0] == '-' || text[0] == '+')) text.remove_prefix(1);
  const auto is_digit = [](char c) { return c >= '0' && c <= '9'; };
  return !text.empty() && std::all_of(text.begin(), text.end(), is_digit);
}

// What LeadingInt reads a number from; empty when there are no digits.
std::string_view SignAndDigits(std::string_view text) {
  const std::size_t begin = text.find_first_not_of(" \t\n\v\f\r");
  if (begin == std::string_view::npos) return {};
  const std::size_t digits = begin + (text[begin] == '-' || text[begin] == '+' ? 1 : 0);
  const std::size_t end = std::min(text.find_first_not_of("0123456789", digits), text.size());
  return end == digits ? std::string_view() : text.substr(begin, end - begin);
}

// What a value of another type than the key's is to its reader.
Found Refused(const Node& value, NodeType type) {
  const bool is_great = value.type == NodeType::kOther && IsInteger(value.Bytes());
  return type == NodeType::kInteger && is_great ? Found::kTooGreat : Found::kWrongType;
}

void SetValue(TracedKey& traced, const Node& value) {
  traced.value_bytes = value.Bytes();
  traced.is_text = value.type == NodeType::kText;
  if (value.type == NodeType::kInteger) traced.number = value.number;
}

}  // namespace

JsonKeyTracer::JsonKeyTracer(NameTrace& trace, const NodeList& nodes, std::uint32_t value, std::string path,
                             std::optional<std::size_t> item)
    : trace_(trace), nodes_(nodes), path_(std::move(path)), item_(item) {
  if (nodes[value].type == NodeType::kObject) members_ = ChildrenOf(value);
}

std::vector<std::uint32_t> JsonKeyTracer::ChildrenOf(std::uint32_t parent) const {
  std::vector<std::uint32_t> children;
  for (std::uint32_t child = nodes_[parent].last; child != 0; child = nodes_[child].previous) {
    children.push_back(child);
  }
  std::reverse(children.begin(), children.end());
  return children;
}

TracedKey& JsonKeyTracer::AddMember(const Node& member, std::string_view key, Found found) {
  TracedKey& traced = trace_.keys.emplace_back();
  traced.key = path_ + std::string(key);
  traced.item = item_;
  traced.found = found;
  traced.key_bytes = member.Key();
  SetValue(traced, member);
  return traced;
}

std::uint32_t JsonKeyTracer::Take(std::string_view key) {
  std::uint32_t taken = 0;
  std::vector<std::uint32_t> others;
  for (const std::uint32_t member : members_) {
    if (nodes_[member].Key() != key) {
      others.push_back(member);
      continue;
    }
    if (taken != 0) AddMember(nodes_[taken], key, Found::kRepeated);
    taken = member;
  }
  members_ = std::move(others);
  if (taken == 0) trace_.keys.push_back({path_ + std::string(key), item_, Found::kAbsent, {}, {}, false, 0});
  return taken;
}

TracedKey* JsonKeyTracer::AddTaken(std::uint32_t member, std::string_view key, NodeType type) {
  if (member == 0) return nullptr;
  const Node& value = nodes_[member];
  if (value.type == type) return &AddMember(value, key, Found::kRead);
  AddMember(value, key, Refused(value, type));
  return nullptr;
}

void JsonKeyTracer::AddFlag(std::string_view key) {
  TracedKey* const traced = Add(key, NodeType::kInteger);
  if (traced != nullptr && traced->number != 0 && traced->number != 1) traced->found = Found::kOtherThanFlag;
}

std::vector<std::uint32_t> JsonKeyTracer::AddArray(std::string_view key, NodeType element_type) {
  const std::uint32_t array = Take(key);
  if (AddTaken(array, key, NodeType::kArray) == nullptr) return {};
  std::vector<std::uint32_t> elements = ChildrenOf(array);
  std::size_t read = 0;  // of texts: those of another type have no place in the list
  for (std::size_t i = 0; i < elements.size(); ++i) {
    const Node& element = nodes_[elements[i]];
    const bool is_read = element.type == element_type;
    if (is_read && element_type == NodeType::kObject) continue;  // its keys follow
    TracedKey& traced = trace_.keys.emplace_back();
    traced.key = path_ + std::string(key) + "[]";
    traced.item = is_read ? read++ : i;
    traced.found = is_read ? Found::kRead : Found::kWrongType;
    SetValue(traced, element);
  }
  return elements;
}

void JsonKeyTracer::AddUnknown() {
  for (const std::uint32_t member : members_) {
    AddMember(nodes_[member], nodes_[member].Key(), Found::kUnknown);
  }
}

TracedKey& FieldTracer::Add(std::size_t index, const char* name, Found found) {
  unread_[index] = false;
  TracedKey& field = trace_.keys.emplace_back();
  field.key = name;
  field.found = found;
  field.value_bytes = fields_[index];
  return field;
}

TracedKey& FieldTracer::AddInteger(std::size_t index, const char* name, std::size_t width) {
  TracedKey& field = Add(index, name, Found::kRead);
  if (!ReadInt(field.value_bytes, field.number)) {
    field.found = IsInteger(field.value_bytes) ? Found::kTooGreat : Found::kNotANumber;
  } else if (width == 2 && field.number != static_cast<std::int16_t>(field.number)) {
    field.found = Found::kLosesBits;
  }
  return field;
}

void FieldTracer::AddLeadingInteger(std::size_t index, const char* name) {
  TracedKey& field = Add(index, name, Found::kRead);
  const std::string_view integer = SignAndDigits(field.value_bytes);
  field.number = LeadingInt(field.value_bytes);
  int number = 0;
  if (integer.empty()) {
    field.found = Found::kNoDigits;
  } else if (!ReadInt(integer, number) || number != static_cast<std::int16_t>(number)) {
    field.found = Found::kLosesBits;
  } else if (integer.size() != field.value_bytes.size()) {
    field.found = Found::kLeadingDigits;
  }
}

// The field is one of the texts that were added before; the bar and what follows it do not belong to that.
void FieldTracer::TextAfterBar(std::size_t index, const char* name, const std::string&, const std::string&) {
  const std::size_t bar = fields_[index].rfind('|');
  if (bar == std::string_view::npos) {
    trace_.keys.push_back({name, {}, Found::kAbsent, {}, {}, true, 0});
    return;
  }
  const auto is_of_field = [&](const TracedKey& key) {
    return key.value_bytes.data() == fields_[index].data();
  };
  std::find_if(trace_.keys.begin(), trace_.keys.end(), is_of_field)->value_bytes =
      fields_[index].substr(0, bar);
  trace_.splits.push_back({fields_[index].substr(bar, 1), '|', 2, false, true});
  TracedKey& rest = Add(index, name, Found::kRead);
  rest.is_text = true;
  rest.value_bytes = fields_[index].substr(bar + 1);
}

void FieldTracer::AddUnknown() {
  for (std::size_t i = 0; i < unread_.size(); ++i) {
    if (unread_[i]) Add(i, "", Found::kUnknown);
  }
}

}  // namespace kavrix
