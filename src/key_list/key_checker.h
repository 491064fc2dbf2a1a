#ifndef KAVRIX_KEY_LIST_KEY_CHECKER_H_
#define KAVRIX_KEY_LIST_KEY_CHECKER_H_

#include <cstdint>
#include <limits>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "util/json_value.h"

namespace kavrix {

// A member of an object that the decoder would change or ignore.
class KeyError : public std::runtime_error {
 public:
  KeyError(std::string key, const std::string& problem) : runtime_error(problem), key_(std::move(key)) {}
  const std::string& key() const { return key_; }  // with its path, such as "cameras[1].speed"

 private:
  std::string key_;
};

// Reads an object as JsonKeyReader does, but refuses what the decoder would change or ignore: throws KeyError
// for an unknown key, a value of another type, an integer that its member cannot hold, a flag that is not 0
// or 1. The message says what the decoder would have made of it. Absent keys count as they do for the
// decoder.
class KeyChecker {
 public:
  // `path` precedes the keys in errors.
  explicit KeyChecker(const Json::Value& object, std::string path = "");

  void Text(std::string_view key, std::string& text);

  template <class Int>
  void Integer(std::string_view key, Int& number, [[maybe_unused]] int default_value = 0) {
    number = static_cast<Int>(
        CheckedInteger(key, number, std::numeric_limits<Int>::min(), std::numeric_limits<Int>::max()));
  }

  void TrueWhenZero(std::string_view key, bool& flag) {
    flag = CheckedFlag(key, flag ? 1 : 0, [](int value) { return value == 0; });
  }
  void TrueWhenOne(std::string_view key, bool& flag) {
    flag = CheckedFlag(key, flag ? 1 : 0, [](int value) { return value == 1; });
  }
  void TrueWhenNonZero(std::string_view key, bool& flag) {
    flag = CheckedFlag(key, flag ? 1 : 0, [](int value) { return value != 0; });
  }

  template <class Item, class ItemKeys>
  void Objects(std::string_view key, std::vector<Item>& items, ItemKeys item_keys) {
    const Json::Value* const array = TakeArray(key);
    if (array == nullptr) return;
    for (const Json::Value& element : *array) {
      KeyChecker keys(element, path_ + std::string(key) + "[" + std::to_string(items.size()) + "]");
      Item item;
      item_keys(keys, item);
      keys.RequireAllRead();
      items.push_back(std::move(item));
    }
  }

  void Texts(std::string_view key, std::vector<std::string>& texts);

  // Fields, as keys under their names. An absent field leaves its member unchanged.
  void Text(std::size_t, const char* name, std::string& text) { Text(name, text); }
  template <class Int>
  void Integer(std::size_t, const char* name, Int& number) {
    Integer(name, number);
  }
  template <class Int>
  void LeadingInteger(std::size_t, const char* name, Int& number) {
    Integer(name, number);
  }
  void TrueWhenZero(std::size_t, const char* name, bool& flag) {
    if (JsonUtil::Find(object_, name) != nullptr) TrueWhenZero(name, flag);
  }
  void TrueWhenOne(std::size_t, const char* name, bool& flag) { TrueWhenOne(name, flag); }
  void TrueWhenThere(std::size_t, const char* name, bool& flag) { TrueWhenOne(name, flag); }
  void TextAfterBar(std::size_t, const char* name, const std::string&, std::string& rest) {
    Text(name, rest);
  }

  // Throws KeyError for the first member of the object that no verb read.
  void RequireAllRead() const;

 private:
  const Json::Value* Take(std::string_view key);
  const Json::Value* TakeArray(std::string_view key);
  std::int64_t CheckedInteger(std::string_view key, std::int64_t current, std::int64_t least,
                              std::int64_t most);
  bool CheckedFlag(std::string_view key, int current, bool (*rule)(int value));
  // `decoded`: the result that the decoder would get.
  [[noreturn]] void Fail(std::string_view key, const std::string& expected, const Json::Value& found,
                         const std::string& decoded) const;

  const Json::Value& object_;
  std::string path_;
  std::set<std::string, std::less<>> read_;
};

}  // namespace kavrix

#endif  // KAVRIX_KEY_LIST_KEY_CHECKER_H_
