#ifndef KAVRIX_PAYLOAD_PAYLOAD_NODES_H_
#define KAVRIX_PAYLOAD_PAYLOAD_NODES_H_

#include <json/value.h>

#include <cstddef>
#include <optional>
#include <string_view>

#include "payload/node.h"

namespace kavrix {

// The nodes of a payload: the only way into one. Plain JSON is scanned; JsonCpp's legacy reader judges all
// else, and its tree is listed into the same nodes. What a payload decodes to is what JsonCpp makes of it.
class PayloadNodes {
 public:
  PayloadNodes() = default;
  // Lists a value that a client has parsed; it must outlive the object.
  explicit PayloadNodes(const Json::Value& value) { List(value); }

  // False when `payload`, which must outlive the object, does not parse or its root is not an object.
  bool Read(std::string_view payload);

  // The same, but also false for what is not plain.
  bool ReadPlain(std::string_view payload);

  const NodeList& nodes() const { return nodes_; }

  // Whether the scanner read the payload, so that every node has its bytes.
  bool IsPlain() const { return !tree_; }

  // Where the object that Read found ends, in bytes from the beginning of the payload.
  std::size_t ObjectEnd(std::string_view payload) const;

 private:
  void List(const Json::Value& root);
  void ListValue(const Json::Value& value, std::uint32_t parent, std::string_view key);
  void ListMembers(const Json::Value& object, std::uint32_t index);

  NodeList nodes_;
  std::optional<Json::Value> tree_;  // holds the texts of a payload that is not plain
};

}  // namespace kavrix

#endif  // KAVRIX_PAYLOAD_PAYLOAD_NODES_H_
