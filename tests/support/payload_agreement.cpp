#include "tests/support/payload_agreement.h"

#include <algorithm>
#include <vector>

#include "payload/payload_nodes.h"
#include "payload/plain_scanner.h"
#include "tests/reference/json.h"
#include "tests/reference/plain.h"

namespace kavrix::test {
namespace {

std::vector<std::uint32_t> Children(const NodeList& nodes, std::uint32_t parent) {
  std::vector<std::uint32_t> children;
  for (std::uint32_t child = nodes[parent].last; child != 0; child = nodes[child].previous) {
    children.insert(children.begin(), child);
  }
  return children;
}

bool AreSame(const NodeList& nodes, std::uint32_t index, const Json::Value& value);

bool AreSameElements(const NodeList& nodes, std::uint32_t array, const Json::Value& value) {
  const std::vector<std::uint32_t> elements = Children(nodes, array);
  if (!value.isArray() || elements.size() != value.size()) return false;
  for (Json::ArrayIndex i = 0; i < value.size(); ++i) {
    if (!AreSame(nodes, elements[i], value[i])) return false;
  }
  return true;
}

// Of the members with one key the last one counts.
bool AreSameMembers(const NodeList& nodes, std::uint32_t object, const Json::Value& value) {
  if (!value.isObject()) return false;
  std::vector<std::string> keys;
  for (std::uint32_t member = nodes[object].last; member != 0; member = nodes[member].previous) {
    const std::string key(nodes[member].Key());
    if (std::find(keys.begin(), keys.end(), key) != keys.end()) continue;
    keys.push_back(key);
    const Json::Value* const found = value.find(key.data(), key.data() + key.size());
    if (found == nullptr || !AreSame(nodes, member, *found)) return false;
  }
  return keys.size() == value.size();
}

bool AreSame(const NodeList& nodes, std::uint32_t index, const Json::Value& value) {
  const Node& node = nodes[index];
  const bool is_integer = value.type() == Json::intValue || value.type() == Json::uintValue;
  switch (node.type) {
    case NodeType::kInteger:
      return is_integer && value.isInt() && value.asInt() == node.number;
    case NodeType::kText: {
      std::string text = "replaced";
      AssignText(node, text);
      return value.isString() && value.asString() == text;
    }
    case NodeType::kArray:
      return AreSameElements(nodes, index, value);
    case NodeType::kObject:
      return AreSameMembers(nodes, index, value);
    case NodeType::kOther:
      return !value.isString() && !value.isArray() && !value.isObject() && !(is_integer && value.isInt());
  }
  return false;
}

// Whether the bytes of every node of a plain payload are those of its value.
bool HasTheBytesOfItsValues(const NodeList& nodes, std::string_view payload) {
  for (std::uint32_t index = 0; index < nodes.size(); ++index) {
    const Node& node = nodes[index];
    const std::string_view bytes = node.Bytes();
    const auto begin = static_cast<std::size_t>(bytes.data() - payload.data());
    if (begin + bytes.size() > payload.size()) return false;
    if (node.type == NodeType::kText) {
      if (payload[begin - 1] != '"' || payload[begin + bytes.size()] != '"') return false;
    } else if (node.type == NodeType::kArray || node.type == NodeType::kObject) {
      const bool is_array = node.type == NodeType::kArray;
      if (bytes.front() != (is_array ? '[' : '{') || bytes.back() != (is_array ? ']' : '}')) return false;
    } else if (node.type == NodeType::kInteger && std::stoll(std::string(bytes)) != node.number) {
      return false;
    }
  }
  return true;
}

bool IsTooDeep(std::string_view payload) {
  const auto opening =
      std::count_if(payload.begin(), payload.end(), [](char c) { return c == '[' || c == '{'; });
  return static_cast<std::size_t>(opening) >= kDeepestPlainValue;
}

}  // namespace

std::string DisagreementWithJsonCpp(std::string_view payload) {
  Json::Value tree;
  const std::string copy(payload);
  const bool expected = reference::ParseObject(copy, tree);

  NodeList nodes;
  const bool is_plain = ScanPlain(payload, nodes);
  if (is_plain != reference::IsPlain(copy) && !IsTooDeep(payload)) return "which payloads are plain";
  if (is_plain && !expected) return "JsonCpp refuses it";
  if (is_plain && !AreSame(nodes, 0, tree)) return "the scanned values";
  if (is_plain && !HasTheBytesOfItsValues(nodes, payload)) return "the places of the values";

  PayloadNodes read;
  if (read.Read(payload) != expected) return "which payloads parse";
  if (expected && !AreSame(read.nodes(), 0, tree)) return "the values";
  return "";
}

}  // namespace kavrix::test
