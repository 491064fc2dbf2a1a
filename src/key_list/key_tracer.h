#ifndef KAVRIX_KEY_LIST_KEY_TRACER_H_
#define KAVRIX_KEY_LIST_KEY_TRACER_H_

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "payload/payload_nodes.h"

namespace kavrix {

// What a reader makes of one key, field or element.
enum class Found {
  kAbsent,
  kRead,
  kOtherThanFlag,  // read; an integer that is neither 0 nor 1, or a character of a field that is neither
  kLosesBits,      // read, but only its low 16 bits
  kLeadingDigits,  // read as far as the digits go
  kNoDigits,       // read as 0
  kOnlyThere,      // read; what counts is that the field is there, not what it holds
  kTooGreat,       // an integer that does not fit 32 bits counts as absent
  kWrongType,      // counts as absent, or as an empty object in an array of objects
  kNotANumber,     // a field that leaves its member unchanged
  kNotOne,         // a field of another length than the "1" that counts: none of its bytes alone matters
  kRepeated,       // a later member with the same key counts
  kUnknown,        // a key, or a field, that no verb reads
};

constexpr bool IsRead(Found found) {
  switch (found) {
    case Found::kRead:
    case Found::kOtherThanFlag:
    case Found::kLosesBits:
    case Found::kLeadingDigits:
    case Found::kNoDigits:
    case Found::kOnlyThere:
      return true;
    case Found::kAbsent:
    case Found::kTooGreat:
    case Found::kWrongType:
    case Found::kNotANumber:
    case Found::kNotOne:
    case Found::kRepeated:
    case Found::kUnknown:
      return false;
  }
  return false;
}

// One key of a name's JSON object, one field, or one element of an array. The views point into the name.
struct TracedKey {
  std::string key;  // as KeyLister has it: "mode", "cameras[].type"; "cameras[]" for an element
  std::optional<std::size_t> item;  // the element's index in its array
  Found found = Found::kAbsent;
  std::string_view key_bytes;    // between its quotes; null for fields and elements
  std::string_view value_bytes;  // those of a text between its quotes
  bool is_text = false;          // the value stands in quotes
  std::int32_t number = 0;       // of an integer that was read
};

// Text that was read as a JSON object.
struct TracedObject {
  std::string_view text;   // may go on after the object
  std::string_view bytes;  // of the object, when the text is plain
  bool is_plain = false;
  bool is_object = false;
};

// Text that was cut into fields.
struct TracedSplit {
  std::string_view text;
  char separator = 0;
  std::size_t expected = 0;
  bool takes_more = false;  // than expected
  bool is_accepted = false;
};

// All that was touched in reading one name, in reading order.
struct NameTrace {
  std::string_view payload;
  std::optional<TracedObject> object;
  std::vector<TracedSplit> splits;
  std::vector<TracedKey> keys;
};

// Runs a key list and notes what JsonKeyReader would read, and from where. Reads nothing.
class JsonKeyTracer {
 public:
  JsonKeyTracer(NameTrace& trace, const NodeList& nodes) : JsonKeyTracer(trace, nodes, 0, "", {}) {}

  template <class Member>
  void Text(std::string_view key, Member&) {
    Add(key, NodeType::kText);
  }
  template <class Int>
  void Integer(std::string_view key, Int&, int /*default_value*/ = 0) {
    TracedKey* const traced = Add(key, NodeType::kInteger);
    if (traced != nullptr && traced->number != static_cast<Int>(traced->number)) {
      traced->found = Found::kLosesBits;
    }
  }
  template <class Flag>
  void TrueWhenZero(std::string_view key, Flag&) {
    AddFlag(key);
  }
  template <class Flag>
  void TrueWhenOne(std::string_view key, Flag&) {
    AddFlag(key);
  }
  template <class Flag>
  void TrueWhenNonZero(std::string_view key, Flag&) {
    AddFlag(key);
  }
  template <class Items, class ItemKeys>
  void Objects(std::string_view key, Items&, ItemKeys item_keys) {
    const std::vector<std::uint32_t> elements = AddArray(key, NodeType::kObject);
    for (std::size_t i = 0; i < elements.size(); ++i) {
      JsonKeyTracer keys(trace_, nodes_, elements[i], path_ + std::string(key) + "[].", i);
      typename Items::value_type item;
      item_keys(keys, item);
      keys.AddUnknown();
    }
  }
  template <class Member>
  void Texts(std::string_view key, Member&) {
    AddArray(key, NodeType::kText);
  }

  // Adds the keys of the object that no verb read.
  void AddUnknown();

 private:
  JsonKeyTracer(NameTrace& trace, const NodeList& nodes, std::uint32_t value, std::string path,
                std::optional<std::size_t> item);

  // Returns the member that counts, and adds those that it replaces. When there is none, adds the key as
  // absent and returns 0.
  std::uint32_t Take(std::string_view key);
  // Returns the entry of the key, which is valid until the next is added; null when it was not read.
  TracedKey* Add(std::string_view key, NodeType type) { return AddTaken(Take(key), key, type); }
  TracedKey* AddTaken(std::uint32_t member, std::string_view key, NodeType type);
  void AddFlag(std::string_view key);
  // Adds the array and those of its elements that are not of the type. Returns all of them, in order.
  std::vector<std::uint32_t> AddArray(std::string_view key, NodeType element_type);
  TracedKey& AddMember(const Node& member, std::string_view key, Found found);
  std::vector<std::uint32_t> ChildrenOf(std::uint32_t parent) const;

  NameTrace& trace_;
  const NodeList& nodes_;
  const std::string path_;
  const std::optional<std::size_t> item_;
  std::vector<std::uint32_t> members_;  // those that no verb took yet
};

// Runs a list of fields and notes what FieldReader would read, and from where. Reads nothing.
class FieldTracer {
 public:
  FieldTracer(NameTrace& trace, const std::string_view* fields, std::size_t count)
      : trace_(trace), fields_(fields), unread_(count, true) {}

  template <class Member>
  void Text(std::size_t index, const char* name, Member&) {
    Add(index, name, Found::kRead).is_text = true;
  }
  template <class Int>
  void Integer(std::size_t index, const char* name, Int&) {
    AddInteger(index, name, sizeof(Int));
  }
  template <class Int>
  void LeadingInteger(std::size_t index, const char* name, Int&) {
    static_assert(sizeof(Int) == 2);
    AddLeadingInteger(index, name);
  }
  template <class Flag>
  void TrueWhenZero(std::size_t index, const char* name, Flag&) {
    TracedKey& field = AddInteger(index, name, sizeof(int));
    if (field.found == Found::kRead && field.number != 0 && field.number != 1)
      field.found = Found::kOtherThanFlag;
  }
  template <class Flag>
  void TrueWhenOne(std::size_t index, const char* name, Flag&) {
    TracedKey& field = Add(index, name, Found::kRead);
    field.number = field.value_bytes == "1" ? 1 : 0;
    if (field.number == 1 || field.value_bytes == "0") return;
    field.found = field.value_bytes.size() == 1 ? Found::kOtherThanFlag : Found::kNotOne;
  }
  template <class Flag>
  void TrueWhenThere(std::size_t index, const char* name, Flag&) {
    if (index < unread_.size()) Add(index, name, Found::kOnlyThere).number = 1;
  }
  void TextAfterBar(std::size_t index, const char* name, const std::string& text, const std::string& rest);

  // Adds the fields that no verb read.
  void AddUnknown();

 private:
  TracedKey& Add(std::size_t index, const char* name, Found found);
  TracedKey& AddInteger(std::size_t index, const char* name, std::size_t width);
  void AddLeadingInteger(std::size_t index, const char* name);

  NameTrace& trace_;
  const std::string_view* const fields_;
  std::vector<bool> unread_;
};

}  // namespace kavrix

#endif  // KAVRIX_KEY_LIST_KEY_TRACER_H_
