#include "tools/json_writer.h"

#include <array>
#include <charconv>
#include <cmath>

#include "util/utf8.h"

namespace kavrix::tools {

void JsonWriter::Real(float value) {
  if (!std::isfinite(value)) return Null();
  if (value == 0 && std::signbit(value)) return RawNumber("-0.0");
  std::array<char, 32> text{};
  const char* const end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
  RawNumber({text.data(), static_cast<std::size_t>(end - text.data())});
}

void JsonWriter::Text(std::string_view text) {
  std::string repaired;
  if (ValidUtf8Length(text) < text.size()) {
    repaired = ToValidUtf8(text);
    text = repaired;
  }
  writer_.String(text.data(), static_cast<rapidjson::SizeType>(text.size()));
}

std::string JsonWriter::TakeLine() {
  buffer_.Put('\n');
  return {buffer_.GetString(), buffer_.GetSize()};
}

}  // namespace kavrix::tools
