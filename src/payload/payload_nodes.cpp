#include "payload/payload_nodes.h"

#include "payload/json_tree.h"
#include "payload/plain_scanner.h"
#include "util/json_value.h"

namespace kavrix {

bool PayloadNodes::ReadPlain(std::string_view payload) { return ScanPlain(payload, nodes_); }

bool PayloadNodes::Read(std::string_view payload) {
  if (ReadPlain(payload)) return true;
  tree_.emplace();
  if (!ParseTree(payload, *tree_)) return false;
  nodes_.Clear();
  List(*tree_);
  return true;
}

std::size_t PayloadNodes::ObjectEnd(std::string_view payload) const {
  if (tree_) return static_cast<std::size_t>(tree_->getOffsetLimit());
  const std::string_view object = nodes_[0].Bytes();
  return static_cast<std::size_t>(object.data() + object.size() - payload.data());
}

void PayloadNodes::List(const Json::Value& root) { ListValue(root, 0, {}); }

void PayloadNodes::ListValue(const Json::Value& value, std::uint32_t parent, std::string_view key) {
  const std::uint32_t index = nodes_.size();
  Node& node = nodes_.Append(parent, key);
  node.type = NodeType::kOther;
  node.bytes = nullptr;
  node.length = 0;
  switch (value.type()) {
    case Json::intValue:
    case Json::uintValue: {
      const std::optional<int> number = JsonUtil::AsInt(value);
      if (!number) return;
      node.type = NodeType::kInteger;
      node.number = *number;
      return;
    }
    case Json::stringValue: {
      const std::string_view text = *JsonUtil::AsText(value);
      node.type = NodeType::kText;
      node.bytes = text.data();
      node.length = static_cast<std::uint32_t>(text.size());
      return;
    }
    case Json::arrayValue:
      node.type = NodeType::kArray;
      for (const Json::Value& element : value) ListValue(element, index, {});
      return;
    case Json::objectValue:
      node.type = NodeType::kObject;
      ListMembers(value, index);
      return;
    default:
      return;
  }
}

void PayloadNodes::ListMembers(const Json::Value& object, std::uint32_t index) {
  Json::Value::const_iterator it = object.begin();
  for (Json::ArrayIndex left = object.size(); left > 0; --left, ++it) {  // comparing with end() costs more
    const char* key_end = nullptr;
    const char* const key = it.memberName(&key_end);
    ListValue(*it, index, {key, static_cast<std::size_t>(key_end - key)});
  }
}

}  // namespace kavrix
