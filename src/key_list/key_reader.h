#ifndef KAVRIX_KEY_LIST_KEY_READER_H_
#define KAVRIX_KEY_LIST_KEY_READER_H_

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "payload/payload_nodes.h"
#include "util/fields.h"

// A key list is a function template that lists what a resource name carries, in reading order, by calling
// verbs of its first argument. The decoder passes one of the readers below.
namespace kavrix {

// Reads from a JSON object. A key that is absent or of another type counts as holding the member's current
// value. Any other JSON value counts as an empty object. Keys are literals, so that comparing one with a
// member's costs a few instructions and not a call.
class JsonKeyReader {
 public:
  // Reads from the root.
  explicit JsonKeyReader(const NodeList& nodes) : JsonKeyReader(nodes, 0) {}

  template <std::size_t N>
  void Text(const char (&key)[N], std::string& text) {
    const Node* const value = Find(key);
    if (value != nullptr && value->type == NodeType::kText) AssignText(*value, text);
  }

  // Narrows to the member's width. Only writers use the default: here the member already holds it.
  template <std::size_t N, class Int>
  void Integer(const char (&key)[N], Int& number, [[maybe_unused]] int default_value = 0) {
    number = static_cast<Int>(IntOr(key, number));
  }

  // Three rules for flags. An absent key counts as the flag's current value, 0 or 1, which TrueWhenZero
  // inverts.
  template <std::size_t N>
  void TrueWhenZero(const char (&key)[N], bool& flag) {
    flag = IntOr(key, flag ? 1 : 0) == 0;
  }
  template <std::size_t N>
  void TrueWhenOne(const char (&key)[N], bool& flag) {
    flag = IntOr(key, flag ? 1 : 0) == 1;
  }
  template <std::size_t N>
  void TrueWhenNonZero(const char (&key)[N], bool& flag) {
    flag = IntOr(key, flag ? 1 : 0) != 0;
  }

  // Appends one item for each element of an array, whatever its type. `item_keys(keys, item)` is the item's
  // key list.
  template <std::size_t N, class Item, class ItemKeys>
  void Objects(const char (&key)[N], std::vector<Item>& items, ItemKeys item_keys) {
    const Node* const array = Find(key);
    if (array == nullptr || array->type != NodeType::kArray) return;
    std::size_t place = items.size() + CountElements(*array);
    items.resize(place);
    for (std::uint32_t element = array->last; element != 0; element = nodes_[element].previous) {
      JsonKeyReader keys(nodes_, element);
      item_keys(keys, items[--place]);
    }
  }

  // Appends the elements of an array that are strings and ignores the others.
  template <std::size_t N>
  void Texts(const char (&key)[N], std::vector<std::string>& texts) {
    const Node* const array = Find(key);
    if (array != nullptr && array->type == NodeType::kArray) AppendTexts(*array, texts);
  }

 private:
  JsonKeyReader(const NodeList& nodes, std::uint32_t value)
      : nodes_(nodes), last_member_(nodes[value].type == NodeType::kObject ? nodes[value].last : 0) {}

  template <std::size_t N>
  int IntOr(const char (&key)[N], int current) const {
    const Node* const value = Find(key);
    return value != nullptr && value->type == NodeType::kInteger ? value->number : current;
  }

  // Searches from the last member: of two with one key the later one counts.
  template <std::size_t N>
  const Node* Find(const char (&key)[N]) const {
    for (std::uint32_t member = last_member_; member != 0; member = nodes_[member].previous) {
      const Node& node = nodes_[member];
      if (node.key_length == N - 1 && std::memcmp(node.key, key, N - 1) == 0) return &node;
    }
    return nullptr;
  }

  std::size_t CountElements(const Node& array) const;
  void AppendTexts(const Node& array, std::vector<std::string>& texts) const;

  const NodeList& nodes_;
  const std::uint32_t last_member_;
};

// Calls `list` with a reader of the JSON object in `text`; false when `text` is not one.
template <class List>
bool ReadJsonObject(std::string_view text, List list) {
  PayloadNodes payload;
  if (!payload.Read(text)) return false;
  JsonKeyReader keys(payload.nodes());
  list(keys);
  return true;
}

// Reads the fields of a split payload by index; the names are for the placing side. A field that does not
// convert leaves its member unchanged.
class FieldReader {
 public:
  FieldReader(const std::string_view* fields, std::size_t count) : fields_(fields), count_(count) {}

  void Text(std::size_t index, const char*, std::string& text) { text = fields_[index]; }

  // Narrows to the member's width.
  template <class Int>
  void Integer(std::size_t index, const char*, Int& number) {
    int value = 0;
    if (ReadInt(fields_[index], value)) number = static_cast<Int>(value);
  }

  // Reads as atoi does: a field that is not a number stores 0. Narrows to the member's width.
  template <class Int>
  void LeadingInteger(std::size_t index, const char*, Int& number) {
    number = static_cast<Int>(LeadingInt(fields_[index]));
  }

  void TrueWhenZero(std::size_t index, const char*, bool& flag) {
    int value = 0;
    if (ReadInt(fields_[index], value)) flag = value == 0;
  }

  // True when the field is exactly "1".
  void TrueWhenOne(std::size_t index, const char*, bool& flag) { flag = fields_[index] == "1"; }

  // Whatever the field holds. Without the field the flag stays as it is.
  void TrueWhenThere(std::size_t index, const char*, bool& flag) {
    if (index < count_) flag = true;
  }

  // Moves what follows the last "|" of `text`, which was read from the field, to `rest`. Without a "|" both
  // stay as they are.
  static void TextAfterBar(std::size_t, const char*, std::string& text, std::string& rest) {
    const std::size_t bar = text.rfind('|');
    if (bar == std::string::npos) return;
    rest = text.substr(bar + 1);
    text.erase(bar);
  }

 private:
  const std::string_view* fields_;
  std::size_t count_;  // at least as many as have verbs that need their field
};

}  // namespace kavrix

#endif  // KAVRIX_KEY_LIST_KEY_READER_H_
