#ifndef KAVRIX_UTIL_TEXT_BUFFER_H_
#define KAVRIX_UTIL_TEXT_BUFFER_H_

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace kavrix {

// Text that grows by many small pieces, without a call for each as std::string makes.
class TextBuffer {
 public:
  explicit TextBuffer(std::size_t usual_size) : bytes_(usual_size, '\0') {}

  TextBuffer& operator+=(char c) {
    *Reserve(1) = c;
    ++size_;
    return *this;
  }
  TextBuffer& operator+=(std::string_view text) {
    size_ += text.copy(Reserve(text.size()), text.size());
    return *this;
  }

  // Appends the shortest text that reads back to the same number.
  template <class Number>
  void AppendNumber(Number value) {
    constexpr std::size_t kMost = 32;
    char* const begin = Reserve(kMost);
    Advance(static_cast<std::size_t>(std::to_chars(begin, begin + kMost, value).ptr - begin));
  }

  // Returns a place for `size` bytes at the end of the text; Advance then adds the first of them to it.
  char* Reserve(std::size_t size) {
    if (bytes_.size() - size_ < size) bytes_.resize(std::max(2 * bytes_.size(), size_ + size));
    return bytes_.data() + size_;
  }
  void Advance(std::size_t size) { size_ += size; }

  std::string_view View() const { return {bytes_.data(), size_}; }
  // The text; the buffer is then of no use.
  std::string Take() {
    bytes_.resize(size_);
    return std::move(bytes_);
  }

 private:
  std::string bytes_;  // longer than the text
  std::size_t size_ = 0;
};

}  // namespace kavrix

#endif  // KAVRIX_UTIL_TEXT_BUFFER_H_
