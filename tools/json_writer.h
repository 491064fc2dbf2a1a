#ifndef KAVRIX_TOOLS_JSON_WRITER_H_
#define KAVRIX_TOOLS_JSON_WRITER_H_

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace kavrix::tools {

// JSON text, written as it comes, into one buffer without a call for each piece: in bulk, much of the time
// goes here. Texts may hold any bytes: what is not UTF-8 becomes U+FFFD.
class JsonWriter {
 public:
  JsonWriter() : buffer_(kUsualLineSize, '\0') {}

  void BeginObject() { Open('{'); }
  void EndObject() { Close('}'); }
  void BeginArray() { Open('['); }
  void EndArray() { Close(']'); }
  // The key, which needs no escapes, of the value that is written next.
  void Key(std::string_view key);
  void Null() { Raw("null"); }
  void Flag(bool value) { Raw(value ? "true" : "false"); }
  void Integer(std::int64_t value);
  // The shortest text that reads back to the same float: without a point where the float is whole, but -0.0,
  // because -0 loses its sign to readers of integers. Null when it is no number.
  void Real(float value);
  void Text(std::string_view text);

  // What was written, as a line.
  std::string TakeLine();

 private:
  // Returns a place for at least `size` bytes.
  char* Reserve(std::size_t size) {
    if (buffer_.size() - size_ < size) Grow(size);
    return &buffer_[size_];
  }
  void Grow(std::size_t size);

  void Put(char c) {
    *Reserve(1) = c;
    ++size_;
  }
  void Put(std::string_view bytes) {
    std::memcpy(Reserve(bytes.size()), bytes.data(), bytes.size());
    size_ += bytes.size();
  }
  template <class Number>
  void PutNumber(Number value);
  std::size_t PutCharacter(std::string_view text);
  void PutEscape(char c);

  void Raw(std::string_view value) {
    Separate();
    Put(value);
  }
  void Open(char bracket) {
    Separate();
    Put(bracket);
    needs_comma_ = false;
  }
  void Close(char bracket) {
    Put(bracket);
    needs_comma_ = true;
  }
  void Separate() {
    if (needs_comma_) Put(',');
    needs_comma_ = true;
  }

  static constexpr std::size_t kUsualLineSize = 2048;  // what a line need not grow to by many small steps

  std::string buffer_;  // larger than what was written
  std::size_t size_ = 0;
  bool needs_comma_ = false;  // before the next value or key
};

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_JSON_WRITER_H_
