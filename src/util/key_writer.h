#ifndef KAVRIX_UTIL_KEY_WRITER_H_
#define KAVRIX_UTIL_KEY_WRITER_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Runs a key list backwards: what the readers of key_reader.h read, these write.
namespace kavrix {

// A place in a text that a name cannot carry as it stands.
struct BadText {
  std::string field;
  std::string text;
  std::size_t byte_offset;
  std::string problem;  // "is not UTF-8"
};

// Builds a JSON object with its keys in the order of the list.
class JsonKeyWriter {
 public:
  enum class Escapes {
    kPlain,     // what JSON asks for
    kForNames,  // '@' and '.' too, which would form separators and markers of a resource name
  };

  explicit JsonKeyWriter(Escapes escapes) : escapes_(escapes) {}

  void Text(std::string_view key, const std::string& text) {
    Add(key, Quoted(key, text), Presence::kUnlessDefault);
  }

  template <class Int>
  void Integer(std::string_view key, const Int& number) {
    Add(key, std::to_string(number), Presence::kUnlessDefault);
  }

  // Always there, because left out it would count inverted.
  void TrueWhenZero(std::string_view key, const bool& flag) { Add(key, flag ? "0" : "1", Presence::kAlways); }
  void TrueWhenOne(std::string_view key, const bool& flag) { Integer(key, flag ? 1 : 0); }
  void TrueWhenNonZero(std::string_view key, const bool& flag) { Integer(key, flag ? 1 : 0); }

  template <class Item, class ItemKeys>
  void Records(std::string_view key, const std::vector<Item>& items, ItemKeys item_keys) {
    std::vector<std::string> elements;
    const Item default_item{};
    for (const Item& item : items) {
      JsonKeyWriter keys(escapes_);
      item_keys(keys, item);
      JsonKeyWriter default_keys(escapes_);
      item_keys(default_keys, default_item);
      if (keys.bad_ && !bad_) {
        bad_ = keys.bad_;
        bad_->field = std::string(key) + "[" + std::to_string(elements.size()) + "]." + bad_->field;
      }
      elements.push_back(keys.ObjectWithout(default_keys));
    }
    AddArray(key, elements);
  }

  void Texts(std::string_view key, const std::vector<std::string>& texts);

  // Fields by index, written under their names.
  void Text(std::size_t, const char* name, const std::string& text) { Text(name, text); }
  template <class Int>
  void Integer(std::size_t, const char* name, const Int& number) {
    Integer(name, number);
  }
  template <class Int>
  void LeadingInteger(std::size_t, const char* name, const Int& number) {
    Integer(name, number);
  }
  void TrueWhenZero(std::size_t, const char* name, const bool& flag) { TrueWhenZero(name, flag); }

  // The object, less the keys whose values are those of `defaults`, which ran the same list.
  std::string ObjectWithout(const JsonKeyWriter& defaults) const;

  // The first piece of a text that is not UTF-8; its bytes were written as they are.
  const std::optional<BadText>& bad() const { return bad_; }

 private:
  enum class Presence { kAlways, kUnlessDefault };
  struct Entry {
    std::string key;
    std::string json;
    Presence presence;
  };

  void Add(std::string_view key, std::string json, Presence presence) {
    entries_.push_back({std::string(key), std::move(json), presence});
  }
  void AddArray(std::string_view key, const std::vector<std::string>& elements);
  std::string Quoted(std::string_view key, std::string_view text);

  Escapes escapes_;
  std::vector<Entry> entries_;
  std::optional<BadText> bad_;
};

// Builds the fields of a split text.
class FieldWriter {
 public:
  explicit FieldWriter(std::size_t count) : fields_(count), names_(count) {}

  void Text(std::size_t index, const char* name, std::string_view text) {
    fields_[index] = text;
    names_[index] = name;
  }
  template <class Int>
  void Integer(std::size_t index, const char* name, const Int& number) {
    Text(index, name, std::to_string(number));
  }
  template <class Int>
  void LeadingInteger(std::size_t index, const char* name, const Int& number) {
    Integer(index, name, number);
  }
  void TrueWhenZero(std::size_t index, const char* name, const bool& flag) {
    Text(index, name, flag ? "0" : "1");
  }

  const std::vector<std::string>& fields() const { return fields_; }
  const std::vector<const char*>& names() const { return names_; }  // null for a field that nobody reads

 private:
  std::vector<std::string> fields_;
  std::vector<const char*> names_;
};

}  // namespace kavrix

#endif  // KAVRIX_UTIL_KEY_WRITER_H_
