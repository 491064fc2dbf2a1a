#include "payload/node.h"

#include <algorithm>
#include <utility>

#include "payload/escapes.h"

namespace kavrix {

void NodeList::Grow() {
  std::unique_ptr<Node[]> larger(new Node[std::size_t{capacity_} * 2]);  // not make_unique, which clears them
  std::copy_n(nodes_, size_, larger.get());
  outside_ = std::move(larger);
  nodes_ = outside_.get();
  capacity_ *= 2;
}

void AssignText(const Node& node, std::string& text) {
  if (!node.has_escapes) {
    text = std::string(node.Bytes());  // moved in, which costs less than assigning to an empty string
    return;
  }
  text.clear();
  AppendUnescaped(text, node.Bytes());
}

}  // namespace kavrix
