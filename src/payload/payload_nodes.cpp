#include "payload/payload_nodes.h"

#include "payload/json_tree.h"
#include "payload/plain_scanner.h"
#include "util/json_value.h"

namespace kavrix {
namespace {

NodeType TypeOf(const Json::Value& value) {
  if (value.isString()) return NodeType::kText;
  if (value.isArray()) return NodeType::kArray;
  if (value.isObject()) return NodeType::kObject;
  return JsonUtil::AsInt(value) ? NodeType::kInteger : NodeType::kOther;
}

}  // namespace

bool PayloadNodes::Read(std::string_view payload) {
  if (ScanPlain(payload, nodes_)) return true;
  tree_.emplace();
  if (!ParseTree(payload, *tree_)) return false;
  nodes_.Clear();
  List(*tree_);
  return true;
}

void PayloadNodes::List(const Json::Value& root) { ListValue(root, 0, {}); }

void PayloadNodes::ListValue(const Json::Value& value, std::uint32_t parent, std::string_view key) {
  const std::uint32_t index = nodes_.size();
  Node& node = nodes_.Append(parent, key);
  node.type = TypeOf(value);
  node.bytes = nullptr;
  node.length = 0;
  switch (node.type) {  // GCOVR_EXCL_BR_LINE: there is no other type
    case NodeType::kInteger:
      node.number = *JsonUtil::AsInt(value);
      return;
    case NodeType::kText: {
      const std::string_view text = *JsonUtil::AsText(value);
      node.bytes = text.data();
      node.length = static_cast<std::uint32_t>(text.size());
      return;
    }
    case NodeType::kArray:
      for (const Json::Value& element : value) ListValue(element, index, {});
      return;
    case NodeType::kObject:
      for (auto it = value.begin(); it != value.end(); ++it) {
        const char* key_end = nullptr;
        const char* const member = it.memberName(&key_end);
        ListValue(*it, index, {member, static_cast<std::size_t>(key_end - member)});
      }
      return;
    case NodeType::kOther:
      return;
  }
}

}  // namespace kavrix
