#ifndef KAVRIX_KEY_LIST_KEY_READER_H_
#define KAVRIX_KEY_LIST_KEY_READER_H_

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "util/fields.h"
#include "util/json_value.h"

// A key list is a function template that lists what a resource name carries, in reading order, by calling
// verbs of its first argument. The decoder passes one of the readers below.
namespace kavrix {

// Reads from a JSON object. A key that is absent or of another type counts as holding the member's current
// value. Any other JSON value counts as an empty object.
class JsonKeyReader {
 public:
  explicit JsonKeyReader(const Json::Value& object)
      : object_(object), member_count_(JsonUtil::ListMembers(object, members_)) {}

  void Text(std::string_view key, std::string& text) {
    const Json::Value* const value = Find(key);
    if (value == nullptr) return;
    if (const auto found = JsonUtil::AsText(*value)) text = *found;
  }

  // Narrows to the member's width. Only writers use the default: here the member already holds it.
  template <class Int>
  void Integer(std::string_view key, Int& number, [[maybe_unused]] int default_value = 0) {
    number = static_cast<Int>(IntOr(key, number));
  }

  // Three rules for flags. An absent key counts as the flag's current value, 0 or 1, which TrueWhenZero
  // inverts.
  void TrueWhenZero(std::string_view key, bool& flag) { flag = IntOr(key, flag ? 1 : 0) == 0; }
  void TrueWhenOne(std::string_view key, bool& flag) { flag = IntOr(key, flag ? 1 : 0) == 1; }
  void TrueWhenNonZero(std::string_view key, bool& flag) { flag = IntOr(key, flag ? 1 : 0) != 0; }

  // Appends one item for each element of an array, whatever its type. `item_keys(keys, item)` is the item's
  // key list.
  template <class Item, class ItemKeys>
  void Objects(std::string_view key, std::vector<Item>& items, ItemKeys item_keys) {
    const Json::Value* const array = FindArray(key);
    if (array == nullptr) return;
    items.reserve(items.size() + array->size());
    for (const Json::Value& element : *array) {
      Item item;
      JsonKeyReader keys(element);
      item_keys(keys, item);
      items.push_back(std::move(item));
    }
  }

  // Appends the elements of an array that are strings and ignores the others.
  void Texts(std::string_view key, std::vector<std::string>& texts) {
    const Json::Value* const array = FindArray(key);
    if (array == nullptr) return;
    for (const Json::Value& element : *array) {
      if (const auto text = JsonUtil::AsText(element)) texts.emplace_back(*text);
    }
  }

 private:
  int IntOr(std::string_view key, int current) const {
    const Json::Value* const value = Find(key);
    return value == nullptr ? current : JsonUtil::AsInt(*value).value_or(current);
  }

  // Comparing keys along the listed members costs half of looking each key up in the object's map. Only an
  // object with more members than any kind has keys is looked up in its map.
  const Json::Value* Find(std::string_view key) const {
    if (!member_count_) return JsonUtil::Find(object_, key);
    for (std::size_t i = 0; i < *member_count_; ++i) {
      if (members_[i].Has(key)) return members_[i].value;
    }
    return nullptr;
  }

  const Json::Value* FindArray(std::string_view key) const {
    const Json::Value* const value = Find(key);
    return value != nullptr && value->isArray() ? value : nullptr;
  }

  static constexpr std::size_t kMostMembers = 24;

  const Json::Value& object_;
  std::array<JsonUtil::Member, kMostMembers> members_;
  std::optional<std::size_t> member_count_;  // nullopt: more than kMostMembers
};

// Calls `list` with a reader of the JSON object in `text`; false when `text` is not one.
template <class List>
bool ReadJsonObject(std::string_view text, List list) {
  Json::Value root;
  if (!JsonUtil::ParseObject(text, root)) return false;
  JsonKeyReader keys(root);
  list(keys);
  return true;
}

// Reads the fields of a split payload by index; the names are for the placing side. A field that does not
// convert leaves its member unchanged.
class FieldReader {
 public:
  explicit FieldReader(const std::string_view* fields) : fields_(fields) {}

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

 private:
  const std::string_view* fields_;
};

}  // namespace kavrix

#endif  // KAVRIX_KEY_LIST_KEY_READER_H_
