#include "inspect/json_error.h"

#include <json/reader.h>

#include <algorithm>
#include <optional>
#include <vector>

#include "payload/json_tree.h"
#include "payload/plain_scanner.h"

#if defined(__GNUC__)
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#endif

namespace kavrix::inspect {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool IsHexDigit(char c) { return IsDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); }

// Walks through one JSON value. Each step returns false at the first byte that cannot go on.
class Walker {
 public:
  Walker(std::string_view text, std::size_t deepest) : text_(text), deepest_(deepest) {}

  // The error; none when the text begins with a JSON value.
  std::optional<JsonObjectError> Walk() {
    SkipBlanks();
    root_ = at_;
    if (!Value()) return error_;
    while (!open_.empty()) {
      if (!AfterValue()) return error_;
    }
    return std::nullopt;
  }

  std::size_t root() const { return root_; }

 private:
  bool Expected(const char* what) {
    error_ = {at_, what};
    return false;
  }
  char Next() const { return at_ < text_.size() ? text_[at_] : '\0'; }
  bool Take(char c) {
    if (at_ == text_.size() || text_[at_] != c) return false;
    ++at_;
    return true;
  }

  void SkipBlanks() {
    for (;;) {
      at_ = std::min(text_.find_first_not_of(kJsonBlanks, at_), text_.size());
      if (text_.substr(at_, 2) == "//") {
        at_ = std::min(text_.find_first_of("\n\r", at_), text_.size());
      } else if (text_.substr(at_, 2) == "/*" && text_.find("*/", at_ + 2) != std::string_view::npos) {
        at_ = text_.find("*/", at_ + 2) + 2;
      } else {
        return;
      }
    }
  }

  bool Value() {
    SkipBlanks();
    if (open_.size() == deepest_) return Expected("no value nested so deep");
    switch (Next()) {
      case '{':
        return Open('}', [this] { return Member(); });
      case '[':
        return Open(']', [this] { return Value(); });
      case '"':
        return String();
      case 't':
        return Word("true");
      case 'f':
        return Word("false");
      case 'n':
        return Word("null");
      default:
        return Number();
    }
  }

  template <class First>
  bool Open(char closing, First first) {
    ++at_;
    open_.push_back(closing);
    SkipBlanks();
    if (Next() == closing && at_ < text_.size()) return true;  // AfterValue closes it
    return first();
  }

  bool Member() {
    SkipBlanks();
    if (Next() != '"') return Expected("a key in double quotes");
    if (!String()) return false;
    at_ = std::min(text_.find_first_not_of(kJsonBlanks, at_), text_.size());  // no comment may stand here
    if (!Take(':')) return Expected("':'");
    return Value();
  }

  // After a value in an array or object, or before its closing bracket.
  bool AfterValue() {
    SkipBlanks();
    const char closing = open_.back();
    if (Take(closing)) {
      open_.pop_back();
      return true;
    }
    if (!Take(',')) return Expected(closing == '}' ? "',' or '}'" : "',' or ']'");
    return closing == '}' ? Member() : Value();
  }

  bool String() {
    ++at_;
    for (; at_ < text_.size(); ++at_) {
      if (text_[at_] == '"') {
        ++at_;
        return true;
      }
      if (text_[at_] == '\\' && !Escape()) return false;
    }
    return Expected("the closing quote of the string");
  }

  // Leaves the place at the escape's last character.
  bool Escape() {
    ++at_;
    if (Next() == 'u') return HexDigits();
    if (at_ == text_.size() || std::string_view("\"\\/bfnrt").find(text_[at_]) == std::string_view::npos)
      return Expected("one of \" \\ / b f n r t u after the backslash");
    return true;
  }

  bool HexDigits() {
    const std::size_t begin = at_ + 1;
    for (int i = 0; i < 4; ++i) {
      ++at_;
      if (!IsHexDigit(Next())) return Expected("4 hexadecimal digits after \\u");
    }
    const bool is_high_half = (text_[begin] | 0x20) == 'd' &&
                              std::string_view("89abAB").find(text_[begin + 1]) != std::string_view::npos;
    if (!is_high_half) return true;
    for (const char c : {'\\', 'u'}) {
      ++at_;
      if (Next() != c) return Expected("the second half of the surrogate pair, \\uDC00 to \\uDFFF");
    }
    for (int i = 0; i < 4; ++i) {
      ++at_;
      if (!IsHexDigit(Next())) return Expected("4 hexadecimal digits after \\u");
    }
    return true;
  }

  bool Word(std::string_view word) {
    for (const char c : word) {
      if (!Take(c)) return Expected("true, false or null");
    }
    return true;
  }

  bool Digits() {
    if (!IsDigit(Next())) return Expected("a digit");
    while (IsDigit(Next())) ++at_;
    return true;
  }

  bool Number() {
    const bool is_negative = Take('-');
    if (!is_negative && !IsDigit(Next())) return Expected("a value");
    if (!Take('0') && !Digits()) return false;
    if (Take('.') && !Digits()) return false;
    if (!Take('e') && !Take('E')) return true;
    if (!Take('+')) Take('-');
    return Digits();
  }

  const std::string_view text_;
  const std::size_t deepest_;
  std::size_t at_ = 0;
  std::size_t root_ = 0;
  std::vector<char> open_;  // the closing brackets that are awaited, the innermost last
  JsonObjectError error_;
};

// JsonCpp's own place, for what JSON's grammar allows and JsonCpp refuses: a number that fits no double.
std::optional<JsonObjectError> FindRefusedValue(std::string_view text) {
  Json::Reader reader;
  Json::Value root;
  if (reader.parse(text.data(), text.data() + text.size(), root, false)) return std::nullopt;
  const auto errors = reader.getStructuredErrors();
  const std::size_t at = errors.empty() ? 0 : static_cast<std::size_t>(errors.front().offset_start);
  return JsonObjectError{at, "a number that fits a double"};
}

}  // namespace

JsonObjectError FindJsonError(std::string_view text) {
  Walker walker(text, kDeepestPlainValue);
  if (const auto error = walker.Walk()) return *error;
  const std::size_t root = walker.root();
  if (text[root] != '{') return {root, "'{'"};
  if (const auto error = FindRefusedValue(text)) return *error;
  // What is left is a payload that is not plain, and nested deeper than such a one may be.
  return Walker(text, kDeepestTreeValue).Walk().value_or(JsonObjectError{root, "a value that can be read"});
}

}  // namespace kavrix::inspect
