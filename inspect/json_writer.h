#ifndef KAVRIX_INSPECT_JSON_WRITER_H_
#define KAVRIX_INSPECT_JSON_WRITER_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "util/text_buffer.h"

namespace kavrix::inspect {

// JSON text, written as it comes. Texts may hold any bytes: what is not UTF-8 becomes U+FFFD.
class JsonWriter {
 public:
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
  void Text(std::string_view key, std::string_view text) {
    Key(key);
    Text(text);
  }

  // A value that is JSON already.
  void Json(std::string_view value) { Raw(value); }

  // What was written; the object is then of no use.
  std::string Take() { return text_.Take(); }
  // The same, as a line.
  std::string TakeLine();

 private:
  std::size_t PutCharacter(std::string_view text);
  void PutEscape(char c);

  void Raw(std::string_view value) {
    Separate();
    text_ += value;
  }
  void Open(char bracket) {
    Separate();
    text_ += bracket;
    needs_comma_ = false;
  }
  void Close(char bracket) {
    text_ += bracket;
    needs_comma_ = true;
  }
  void Separate() {
    if (needs_comma_) text_ += ',';
    needs_comma_ = true;
  }

  static constexpr std::size_t kUsualLineSize = 2048;  // what a line need not grow to by many small steps

  TextBuffer text_{kUsualLineSize};
  bool needs_comma_ = false;  // before the next value or key
};

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_JSON_WRITER_H_
