#include "payload/json_nesting.h"

#include <algorithm>
#include <string>

namespace kavrix {
namespace {

// "[" and "{" differ in one bit.
bool IsOpening(char c) { return (c | 0x20) == '{'; }

// Walks over the tokens as JsonCpp's reader does and keeps the brackets around the current place. The reader
// goes no deeper after an error: what the walk makes of the rest does not matter.
class NestingScanner {
 public:
  explicit NestingScanner(std::string_view text) : text_(text) {}

  bool ComesDeeperThan(std::size_t limit) {
    while (at_ < text_.size()) {
      const char c = text_[at_++];
      if (c == ' ' || c == '\t' || c == '\n' || c == '\r') continue;
      if (c == '/' && SkipComment()) {
        comment_seen_ = true;
        continue;
      }
      if (c == '"') SkipText();
      if (c == '}' || c == ']') {
        Close(c == '}' ? '{' : '[');
      } else if (IsSeparator(c)) {
        behind_value_ = false;
      } else {
        if (open_.size() == limit) return true;
        BeginValue(c);
      }
      comment_seen_ = false;
      if (open_.empty()) return false;  // the root has ended
    }
    return false;
  }

 private:
  // Skips what follows the first slash. False when it is not a comment: then takes two bytes in all, as the
  // reader does.
  bool SkipComment() {
    if (at_ == text_.size()) return false;
    const char kind = text_[at_++];
    if (kind == '/') {
      at_ = std::min(text_.find_first_of("\n\r", at_), text_.size());
    } else if (kind == '*') {
      const std::size_t end = text_.find("*/", at_);
      at_ = end == std::string_view::npos ? text_.size() : end + 2;
    }
    return kind == '/' || kind == '*';
  }

  void SkipText() {
    while (at_ < text_.size() && text_[at_] != '"') at_ += text_[at_] == '\\' ? 2 : 1;
    ++at_;
  }

  void Close(char opening) {
    if (open_.empty() || open_.back() != opening) return;
    open_.pop_back();
    behind_value_ = true;
  }

  // In an object, the reader takes anything but "}" that follows a value and a comment for the separator. A
  // bracket is always open after a value: the walk ends with the root.
  bool IsSeparator(char c) const {
    const bool anything_goes = comment_seen_ && behind_value_ && open_.back() == '{';
    return c == ',' || c == ':' || anything_goes;
  }

  void BeginValue(char c) {
    if (IsOpening(c)) open_.push_back(c);
    behind_value_ = !IsOpening(c);
  }

  const std::string_view text_;
  std::size_t at_ = 0;
  std::string open_;           // the brackets around the current place
  bool behind_value_ = false;  // the next token follows a value (or a key)
  bool comment_seen_ = false;  // since the last token
};

}  // namespace

bool IsNestedDeeperThan(std::string_view text, std::size_t limit) {
  const auto opening = std::count_if(text.begin(), text.end(), IsOpening);
  if (static_cast<std::size_t>(opening) < limit) return false;  // true of most texts
  return NestingScanner(text).ComesDeeperThan(limit);
}

}  // namespace kavrix
