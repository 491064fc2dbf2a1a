#ifndef KAVRIX_KEY_LIST_KEY_LISTER_H_
#define KAVRIX_KEY_LIST_KEY_LISTER_H_

#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace kavrix {

// A key of a name's JSON object, or a named field.
struct KeyInfo {
  std::string key;  // "mode"; "cameras[].type" for a key of a list's objects
  // "text", "integer", "integer, low 16 bits", "flag", "array of texts", "array of objects"
  std::string type;
  std::string rule;  // "true when 0"; "-1 when absent"; empty when the type says it all
};

// Runs a key list to collect its keys; reads nothing.
class KeyLister {
 public:
  const std::vector<KeyInfo>& keys() const { return keys_; }

  void Add(std::string_view key, std::string_view type, std::string_view rule = "") {
    keys_.push_back({path_ + std::string(key), std::string(type), std::string(rule)});
  }

  template <class Member>
  void Text(std::string_view key, Member&) {
    Add(key, "text");
  }
  template <class Int>
  void Integer(std::string_view key, Int&, int default_value = 0) {
    Add(key, sizeof(Int) == 2 ? "integer, low 16 bits" : "integer",
        default_value == 0 ? "" : std::to_string(default_value) + " when absent");
  }
  template <class Flag>
  void TrueWhenZero(std::string_view key, Flag&) {
    Add(key, "flag", "true when 0");
  }
  template <class Flag>
  void TrueWhenOne(std::string_view key, Flag&) {
    Add(key, "flag", "true when 1");
  }
  template <class Flag>
  void TrueWhenNonZero(std::string_view key, Flag&) {
    Add(key, "flag", "true when not 0");
  }
  template <class Items, class ItemKeys>
  void Objects(std::string_view key, Items&, ItemKeys item_keys) {
    Add(key, "array of objects");
    path_ = std::string(key) + "[].";
    typename Items::value_type item;
    item_keys(*this, item);
    path_.clear();
  }
  template <class Member>
  void Texts(std::string_view key, Member&) {
    Add(key, "array of texts");
  }

  // Fields, as keys under the names that the placing side uses.
  template <class Member>
  void Text(std::size_t, const char* name, Member& member) {
    Text(name, member);
  }
  template <class Int>
  void Integer(std::size_t, const char* name, Int& number) {
    Integer(name, number);
  }
  template <class Int>
  void LeadingInteger(std::size_t, const char* name, Int&) {
    Add(name, "integer, low 16 bits", "its leading digits, 0 where there are none");
  }
  template <class Flag>
  void TrueWhenZero(std::size_t, const char* name, Flag& flag) {
    TrueWhenZero(name, flag);
  }
  template <class Flag>
  void TrueWhenOne(std::size_t, const char* name, Flag& flag) {
    TrueWhenOne(name, flag);
  }
  template <class Flag>
  void TrueWhenThere(std::size_t, const char* name, Flag& flag) {
    TrueWhenOne(name, flag);
  }
  template <class Member>
  void TextAfterBar(std::size_t, const char* name, Member&, Member& rest) {
    Text(name, rest);
  }

 private:
  std::vector<KeyInfo> keys_;
  std::string path_;
};

}  // namespace kavrix

#endif  // KAVRIX_KEY_LIST_KEY_LISTER_H_
