#ifndef KAVRIX_TOOLS_JSON_WRITER_H_
#define KAVRIX_TOOLS_JSON_WRITER_H_

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace kavrix::tools {

// JSON text, written as it comes. Texts may hold any bytes: what is not UTF-8 becomes U+FFFD.
class JsonWriter {
 public:
  JsonWriter() : buffer_(nullptr, kUsualLineSize), writer_(buffer_) {}

  void BeginObject() { writer_.StartObject(); }
  void EndObject() { writer_.EndObject(); }
  void BeginArray() { writer_.StartArray(); }
  void EndArray() { writer_.EndArray(); }
  void Key(const char* key) { writer_.Key(key); }
  void Null() { writer_.Null(); }
  void Flag(bool value) { writer_.Bool(value); }
  void Integer(std::int64_t value) { writer_.Int64(value); }
  // The shortest text that reads back to the same float: without a point where the float is whole, but -0.0,
  // because -0 loses its sign to readers of integers. Null when it is no number.
  void Real(float value);
  void Text(std::string_view text);

  // What was written, as a line.
  std::string TakeLine();

 private:
  void RawNumber(std::string_view text) {
    writer_.RawValue(text.data(), text.size(), rapidjson::kNumberType);
  }

  static constexpr std::size_t kUsualLineSize = 2048;  // what a line need not grow to by many small steps

  rapidjson::StringBuffer buffer_;
  rapidjson::Writer<rapidjson::StringBuffer> writer_;
};

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_JSON_WRITER_H_
