#ifndef KAVRIX_PAYLOAD_NODE_H_
#define KAVRIX_PAYLOAD_NODE_H_

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace kavrix {

enum class NodeType : std::uint8_t {
  kInteger,  // an integer that fits a signed 32-bit int
  kText,
  kArray,
  kObject,
  kOther,  // what no key list reads: null, true, false, reals, greater integers
};

// One value of a payload. Views point into the payload, or into JsonCpp's tree when JsonCpp had to read it.
// The members have no initialisers, so that an array of nodes costs nothing to make.
struct Node {
  std::string_view Key() const { return {key, key_length}; }
  // A text's bytes are those between its quotes, escapes included; see AssignText.
  std::string_view Bytes() const { return {bytes, length}; }

  const char* key;  // null for the root and for the elements of arrays
  const char* bytes;
  std::uint32_t key_length;
  std::uint32_t length;
  std::uint32_t previous;  // index of the member or element before this one; 0 for the first
  std::uint32_t last;      // index of the last member or element; 0 when there is none, and for scalars
  union {
    std::int32_t number;   // of an integer
    std::uint32_t parent;  // of an array or object: the one around it
  };
  NodeType type;
  bool has_escapes;  // of a text: JSON escapes, all of them valid
};

// The nodes of a payload. The root is at index 0, and every value comes before what is inside it. Most
// payloads need no memory beyond the object itself.
class NodeList {
 public:
  // cppcheck-suppress uninitMemberVar  // Append fills each node of inside_ before it is read
  NodeList() : nodes_(inside_) {}
  NodeList(const NodeList&) = delete;
  NodeList& operator=(const NodeList&) = delete;

  // Appends a node to the members or elements of `parent`, and sets its `previous`, `last`, `has_escapes` and
  // `key`; the others are the caller's. The first node is the root. References to nodes do not survive it.
  Node& Append(std::uint32_t parent, std::string_view key) {
    if (size_ == capacity_) Grow();
    const std::uint32_t index = size_++;
    Node& node = nodes_[index];
    node.key = key.data();
    node.key_length = static_cast<std::uint32_t>(key.size());
    node.last = 0;
    node.has_escapes = false;
    node.previous = nodes_[parent].last;  // the root is its own parent
    nodes_[parent].last = index;
    return node;
  }

  const Node& operator[](std::uint32_t index) const { return nodes_[index]; }
  Node& operator[](std::uint32_t index) { return nodes_[index]; }
  std::uint32_t size() const { return size_; }
  void Clear() { size_ = 0; }

 private:
  static constexpr std::uint32_t kInside = 64;

  void Grow();

  std::uint32_t size_ = 0;
  std::uint32_t capacity_ = kInside;
  Node* nodes_;
  std::unique_ptr<Node[]> outside_;
  Node inside_[kInside];
};

// Replaces `text` by the text of a node, its escapes decoded.
void AssignText(const Node& node, std::string& text);

}  // namespace kavrix

#endif  // KAVRIX_PAYLOAD_NODE_H_
