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
  void Real(float value);  // the shortest text that reads back to the same float; null when it is no number
  void Text(std::string_view text);

  // What was written, as a line.
  std::string TakeLine();

 private:
  static constexpr std::size_t kUsualLineSize = 2048;  // what a line need not grow to by many small steps

  rapidjson::StringBuffer buffer_;
  rapidjson::Writer<rapidjson::StringBuffer> writer_;
};

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_JSON_WRITER_H_
