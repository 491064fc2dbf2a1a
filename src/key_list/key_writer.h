#ifndef KAVRIX_KEY_LIST_KEY_WRITER_H_
#define KAVRIX_KEY_LIST_KEY_WRITER_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kavrix {

// A place in a string that a name cannot carry.
struct BadText {
  std::string field;
  std::string text;
  std::size_t byte_offset;
  std::string problem;  // "is not UTF-8"
};

// Runs a key list backwards: keeps the members of the JSON object that the readers of key_reader.h would read
// and, for lists of fields, the fields too.
class KeyWriter {
 public:
  enum class Escapes {
    kPlain,     // only what JSON requires
    kForNames,  // '@' and '.' too, which could form separators and markers of a name
  };

  struct Field {
    const char* name = nullptr;  // null: no reader reads the field
    std::string text;
  };

  explicit KeyWriter(Escapes escapes) : escapes_(escapes) {}

  void Text(std::string_view key, const std::string& text) { Add(key, Quoted(key, text), text.empty()); }

  // `default_value`: the value of the member when the name has no such key.
  template <class Int>
  void Integer(std::string_view key, const Int& number, int default_value = 0) {
    Add(key, std::to_string(number), number == default_value);
  }

  // Never left out: readers invert an absent flag.
  void TrueWhenZero(std::string_view key, const bool& flag) { Add(key, flag ? "0" : "1", false); }
  void TrueWhenOne(std::string_view key, const bool& flag) { Integer(key, flag ? 1 : 0); }
  void TrueWhenNonZero(std::string_view key, const bool& flag) { Integer(key, flag ? 1 : 0); }

  template <class Item, class ItemKeys>
  void Objects(std::string_view key, const std::vector<Item>& items, ItemKeys item_keys) {
    std::vector<std::string> elements;
    for (const Item& item : items) {
      KeyWriter keys(escapes_);
      item_keys(keys, item);
      NoteBadOf(keys, std::string(key) + "[" + std::to_string(elements.size()) + "].");
      elements.push_back(keys.Object());
    }
    AddArray(key, elements);
  }

  void Texts(std::string_view key, const std::vector<std::string>& texts);

  // Fields, also kept as keys under the names that the placing side uses.
  void Text(std::size_t index, const char* name, const std::string& text) {
    SetField(index, name, text);
    Text(name, text);
  }
  template <class Int>
  void Integer(std::size_t index, const char* name, const Int& number) {
    SetField(index, name, std::to_string(number));
    Integer(name, number);
  }
  template <class Int>
  void LeadingInteger(std::size_t index, const char* name, const Int& number) {
    Integer(index, name, number);
  }
  void TrueWhenZero(std::size_t index, const char* name, const bool& flag) {
    SetField(index, name, flag ? "0" : "1");
    TrueWhenZero(name, flag);
  }
  void TrueWhenOne(std::size_t index, const char* name, const bool& flag) {
    SetField(index, name, flag ? "1" : "0");
    TrueWhenOne(name, flag);
  }
  // The kind writes these two into its fields.
  void TrueWhenThere(std::size_t, const char* name, const bool& flag) { TrueWhenOne(name, flag); }
  void TextAfterBar(std::size_t, const char* name, const std::string&, const std::string& rest) {
    Text(name, rest);
  }

  // Returns the JSON object: the members in the order of the list, without those that hold their defaults and
  // without the key `left_out`.
  std::string Object(std::string_view left_out = "") const;

  const std::vector<Field>& fields() const { return fields_; }

  // The first piece of a string that is not UTF-8. Its bytes are written unchanged.
  const std::optional<BadText>& bad() const { return bad_; }

  friend bool operator==(const KeyWriter& a, const KeyWriter& b) { return a.members_ == b.members_; }

 private:
  struct Member {
    std::string key;
    std::string json;
    bool is_default;
    friend bool operator==(const Member& a, const Member& b) { return a.key == b.key && a.json == b.json; }
  };

  void Add(std::string_view key, std::string json, bool is_default);
  void AddArray(std::string_view key, const std::vector<std::string>& elements);
  void SetField(std::size_t index, const char* name, std::string text);
  void NoteBadOf(const KeyWriter& item, const std::string& path);
  std::string Quoted(std::string_view key, std::string_view text);

  Escapes escapes_;
  std::vector<Member> members_;
  std::vector<Field> fields_;
  std::optional<BadText> bad_;
};

}  // namespace kavrix

#endif  // KAVRIX_KEY_LIST_KEY_WRITER_H_
