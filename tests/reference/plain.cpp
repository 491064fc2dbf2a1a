#include "tests/reference/plain.h"

#include <algorithm>
#include <cstddef>

namespace kavrix::reference {
namespace {

constexpr char kDigits[] = "0123456789";
constexpr char kHexDigits[] = "0123456789abcdefABCDEF";

// The grammar as recursive functions, each of which takes what it names at the current place.
class Grammar {
 public:
  explicit Grammar(const std::string& text) : text_(text) {}

  bool Object() {
    Blanks();
    return List('{', '}', [this] { return Key() && Value(); });
  }

 private:
  bool Take(const std::string& token) {
    if (text_.compare(at_, token.size(), token) != 0) return false;
    at_ += token.size();
    return true;
  }

  void Blanks() { at_ = std::min(text_.find_first_not_of(" \t\n\r", at_), text_.size()); }

  template <class Item>
  bool List(char opening, char closing, Item item) {
    if (!Take(std::string(1, opening))) return false;
    Blanks();
    if (Take(std::string(1, closing))) return true;
    for (;;) {
      Blanks();
      if (!item()) return false;
      Blanks();
      if (Take(std::string(1, closing))) return true;
      if (!Take(",")) return false;
    }
  }

  bool Key() {
    const std::size_t begin = at_;
    if (!Text() || text_.substr(begin, at_ - begin).find('\\') != std::string::npos) return false;
    Blanks();
    return Take(":");
  }

  bool Value() {
    Blanks();
    if (at_ == text_.size()) return false;
    if (text_[at_] == '{') return List('{', '}', [this] { return Key() && Value(); });
    if (text_[at_] == '[') return List('[', ']', [this] { return Value(); });
    if (text_[at_] == '"') return Text();
    return Take("true") || Take("false") || Take("null") || Number();
  }

  bool Text() {
    if (!Take("\"")) return false;
    while (at_ < text_.size()) {
      if (Take("\"")) return true;
      if (text_[at_] != '\\') {
        ++at_;
      } else if (!Escape()) {
        return false;
      }
    }
    return false;
  }

  bool Escape() {
    if (text_.compare(at_, 2, "\\u") != 0) {
      at_ += 2;
      return at_ <= text_.size() && std::string("\"\\/bfnrt").find(text_[at_ - 1]) != std::string::npos;
    }
    const int first = Unit();
    if (first < 0xD800 || first >= 0xE000) return first >= 0;
    if (first >= 0xDC00) return false;
    const int second = Unit();
    return second >= 0xDC00 && second < 0xE000;
  }

  // Takes a \uXXXX and returns its number; -1 when there is none.
  int Unit() {
    if (!Take("\\u")) return -1;
    const std::string digits = text_.substr(at_, 4);
    if (digits.size() < 4 || digits.find_first_not_of(kHexDigits) != std::string::npos) return -1;
    at_ += 4;
    return std::stoi(digits, nullptr, 16);
  }

  // Takes digits and returns how many there were.
  std::size_t Digits() {
    const std::size_t begin = at_;
    at_ = std::min(text_.find_first_not_of(kDigits, at_), text_.size());
    return at_ - begin;
  }

  bool Number() {
    Take("-");
    const bool begins_with_zero = text_[at_] == '0';
    const std::size_t digits = Digits();
    if (digits == 0 || digits > 18 || (begins_with_zero && digits > 1)) return false;
    if (Take(".")) {
      const std::size_t decimals = Digits();
      if (decimals == 0 || decimals > 18) return false;
    }
    if (Take("e") || Take("E")) {
      if (!Take("+")) Take("-");
      const std::size_t exponent = Digits();
      if (exponent == 0 || exponent > 2) return false;
    }
    return true;
  }

  const std::string& text_;
  std::size_t at_ = 0;
};

}  // namespace

bool IsPlain(const std::string& text) { return Grammar(text).Object(); }

}  // namespace kavrix::reference
