#include "inspect/key_problems.h"

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <utility>

#include "inspect/nearest.h"
#include "util/utf8.h"

namespace kavrix::inspect {
namespace {

bool IsElement(const TracedKey& key) {
  return key.key.size() > 2 && key.key.compare(key.key.size() - 2, 2, "[]") == 0;
}

// The name of a key; of an element that of its array.
std::string NameOf(const TracedKey& key) {
  return key.key.substr(0, key.key.size() - (IsElement(key) ? 2 : 0));
}

bool IsField(const TracedKey& key) { return key.key_bytes.data() == nullptr && key.found != Found::kAbsent; }

class KeyFinder {
 public:
  KeyFinder(const NameReading& reading, std::vector<Problem>& problems)
      : reading_(reading), problems_(problems) {
    for (const TracedKey& key : reading.trace().keys) {
      if (key.found == Found::kUnknown || IsElement(key)) continue;
      if (IsField(key)) {
        fields_.insert(key.key);
      } else {
        const std::size_t end_of_path = key.key.rfind('.') + 1;  // 0 without one
        keys_[key.key.substr(0, end_of_path)].insert(key.key.substr(end_of_path));
      }
    }
  }

  void Find(const TracedKey& key) {
    const std::optional<ByteRange> value = reading_.RangeOf(key.value_bytes);
    const std::string source = Excerpt(value ? reading_.SourceOf(*value) : key.value_bytes);
    const std::string text = key.is_text || IsField(key) ? Quoted(source) : ToValidUtf8(source);
    switch (key.found) {
      case Found::kRead:
      case Found::kLeadingDigits:
      case Found::kOnlyThere:
        return;
      case Found::kAbsent:
        if (key.key == "mode") {
          Add("absent-mode", reading_.Object(), "without the key \"mode\" the mode flag is true");
        }
        return;
      case Found::kOtherThanFlag:
      case Found::kNotOne:
        return Add("flag-value", value, text + " is neither 0 nor 1");
      case Found::kLosesBits:
        return Add("out-of-range", value,
                   text + " does not fit 16 bits: it is read as " +
                       std::to_string(static_cast<std::int16_t>(key.number)));
      case Found::kTooGreat:
        return Add("out-of-range", value, text + " does not fit 32 bits: it is not read");
      case Found::kWrongType:
        return Add("wrong-type", value,
                   text + " is of another type than " + (IsElement(key) ? "the elements of " : "") +
                       Quoted(NameOf(key)) + ": it is not read");
      case Found::kNoDigits:
        return Add("not-a-number", value, text + " is no number: it is read as 0");
      case Found::kNotANumber:
        return Add("not-a-number", value, text + " is no number: " + Quoted(NameOf(key)) + " is not read");
      case Found::kRepeated:
        return Add("duplicate-key", reading_.RangeOf(key.key_bytes),
                   Quoted(Excerpt(key.key_bytes)) + " stands in the object once more: the last one counts");
      case Found::kUnknown:
        if (!IsField(key)) FindUnknown(key);  // a field that nobody reads is in every name of the kind
    }
  }

 private:
  void Add(const char* code, std::optional<ByteRange> bytes, std::string message,
           std::optional<std::string> suggestion = {}) {
    problems_.push_back({code, Severity::kWarning, bytes, std::move(message), std::move(suggestion)});
  }

  void FindUnknown(const TracedKey& key) {
    const std::string text = Quoted(Excerpt(reading_.KeyText(key.key_bytes)));
    const std::optional<ByteRange> bytes = reading_.RangeOf(key.key_bytes);
    if (fields_.count(key.key) != 0) {
      return Add("unknown-key", bytes, text + " is read after \"@\", not from the object");
    }
    const std::set<std::string>& keys = keys_[key.key.substr(0, key.key.size() - key.key_bytes.size())];
    Add("unknown-key", bytes, text + " is not a key of " + std::string(reading_.info()->Name()),
        NearestWord(key.key_bytes, {keys.begin(), keys.end()}));
  }

  const NameReading& reading_;
  std::vector<Problem>& problems_;
  std::map<std::string, std::set<std::string>> keys_;  // of the object at each path
  std::set<std::string> fields_;
};

}  // namespace

void AddKeyProblems(const NameReading& reading, std::vector<Problem>& problems) {
  KeyFinder finder(reading, problems);
  for (const TracedKey& key : reading.trace().keys) finder.Find(key);
}

std::string Quoted(std::string_view text) { return "\"" + ToValidUtf8(text) + "\""; }

}  // namespace kavrix::inspect
