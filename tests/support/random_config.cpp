#include "tests/support/random_config.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iomanip>
#include <limits>
#include <locale>
#include <sstream>
#include <utility>

#include "config/bubble_layer_config_container.h"
#include "config/marker_bubble_config.h"

namespace kavrix::test {
namespace {

// What no file may hold, or only in some places.
const std::vector<std::string>& OddValues() {
  static const std::vector<std::string> values = {"null",
                                                  "true",
                                                  "1.0",
                                                  "1.5",
                                                  "-1",
                                                  "-0",
                                                  "-0.0",
                                                  "4294967295",
                                                  "1e400",
                                                  "4294967296",
                                                  "2147483648",
                                                  "-2147483649",
                                                  "01",
                                                  "+1",
                                                  ".5",
                                                  "5.",
                                                  "1e",
                                                  "-",
                                                  "1e39",
                                                  "[]",
                                                  "{}",
                                                  "[1]",
                                                  "\"\"",
                                                  "\"0x\"",
                                                  "\"0xg\"",
                                                  "\"0XFF\"",
                                                  "\"ff\"",
                                                  "\"0x1ffffff\"",
                                                  "\" 0x1\"",
                                                  "\"0x00000000000000ff\"",
                                                  "\"\\x\"",
                                                  "\"\t\"",
                                                  "\"\xFF\"",
                                                  "\"\\ud800\"",
                                                  "\"0x100000000\"",
                                                  "99999999999999999999",
                                                  "\"\\udc00\"",
                                                  "1e-400",
                                                  "NaN",
                                                  "Infinity",
                                                  "0x10",
                                                  "340282356779733661637539395458142568448"};
  return values;
}

std::vector<std::pair<std::string, std::size_t>> LayerRecords() {
  std::vector<std::pair<std::string, std::size_t>> records;
  const BubbleLayerConfigContainer layer;
  ForEachStyleRecord(
      layer, [&](const char* name, const auto& record) { records.emplace_back(name, record.values.size()); });
  return records;
}

std::string Quoted(const std::string& text) { return '"' + text + '"'; }

}  // namespace

std::string RandomConfig::Blank() { return Below(8) == 0 ? OneOf({" ", "\n", "\t", "\r\n", "   "}) : ""; }

std::string RandomConfig::Text() {
  std::string text;
  for (std::size_t pieces = Below(5); pieces > 0; --pieces) {
    text += OneOf({"a", "_style", "路线", "é", "😀", "\x7F", " ", "/", "\\/", "\\n", "\\\"", "\\\\", "\\u0041",
                   "\\u00e9", "\\u8DEF", "\\u0000", "\\ud83d\\uDE97", "\\ufeff", "0x"});
  }
  return Quoted(text);
}

std::string RandomConfig::Digits(std::size_t most) {
  std::string digits;
  for (std::size_t count = 1 + Below(most); count > 0; --count) {
    digits += static_cast<char>('0' + Below(10));
  }
  return digits;
}

std::string RandomConfig::Decimal() {
  const std::string integer = std::string(1, "123456789"[Below(9)]) + Digits(20);
  std::string number = (Flag() ? "-" : "") + (Flag() ? integer : "0");
  if (Flag()) number += "." + Digits(25);
  return Flag() ? number : number + OneOf({"e", "E"}) + OneOf({"", "+", "-"}) + Digits(2);
}

// Digits that are just above or below the middle of two floats, where rounding twice would show.
std::string RandomConfig::NearMiddle() {
  const auto bits = static_cast<std::uint32_t>(random_());
  float number = 0;
  std::memcpy(&number, &bits, sizeof number);
  const double next = std::nextafter(number, std::numeric_limits<float>::infinity());
  const double middle = (static_cast<double>(number) + next) / 2;
  if (!std::isfinite(middle)) return "3.4028235e+38";
  std::ostringstream stream;
  stream.imbue(std::locale::classic());
  stream << std::setprecision(200) << std::scientific << middle;
  const std::string text = stream.str();
  const std::size_t exponent = text.find('e');
  return text.substr(0, exponent - Below(150)) + Digits(3) + text.substr(exponent);
}

std::string RandomConfig::FloatNumber() {
  if (Below(3) == 0) return OneOf({"0", "1", "-0", "0.5", "12", "-3.25", "1E2", "1e-45", "3.4028235e+38"});
  return Flag() ? Decimal() : NearMiddle();
}

std::string RandomConfig::Word() {
  if (Below(3) == 0) return OneOf({"0", "1", "-0", "4294967295", "2147483648", "65536"});
  if (Flag()) return std::to_string(static_cast<std::uint32_t>(random_()) >> Below(32));
  std::string digits(Below(3), '0');
  for (std::size_t count = 1 + Below(8); count > 0; --count) digits += "0123456789abcdefABCDEF"[Below(22)];
  return Quoted("0x" + digits);
}

std::string RandomConfig::Member(const std::string& key, const std::string& value) {
  // An escaped letter is the letter.
  const bool is_escaped = Below(16) == 0 && key[0] >= 'a' && key[0] <= 'z';
  std::ostringstream escape;
  escape.imbue(std::locale::classic());
  escape << "\\u00" << std::hex << static_cast<int>(key[0]);
  const std::string written = is_escaped ? escape.str() + key.substr(1) : key;
  return Quoted(written) + Blank() + ":" + Blank() + value;
}

std::string RandomConfig::Joined(char opening, const std::vector<std::string>& pieces, char closing) {
  std::string joined(1, opening);
  for (const std::string& piece : pieces) {
    joined += (joined.size() > 1 ? "," : "") + Blank() + piece + Blank();
  }
  return joined + closing;
}

std::string RandomConfig::Record(const std::string& name, std::size_t value_count) {
  std::vector<std::string> members;
  if (Flag()) members.push_back(Member("name", Text()));
  if (Below(4) != 0) {
    std::vector<std::string> values;
    const std::size_t count = Flag() ? value_count : Below(value_count + 1);
    for (std::size_t number = 1; number <= count; ++number) {
      values.push_back(IsFloatValue(name, number) ? FloatNumber() : Word());
    }
    members.push_back(Member("values", Joined('[', values, ']')));
  }
  if (Flag()) std::reverse(members.begin(), members.end());
  return Member(name, Joined('{', members, '}'));
}

std::string RandomConfig::AnyRecord() {
  static const auto records = LayerRecords();
  if (Below(8) == 0) return Record("marker_bubble", MarkerBubbleConfig::kValueCount);
  const auto& [name, value_count] = records[Below(records.size())];
  return Record(name, value_count);
}

std::string RandomConfig::BubbleLayer() {
  std::vector<std::string> records;
  const std::size_t one_in = 1 + Below(20);
  for (const auto& [name, value_count] : LayerRecords()) {
    if (Below(one_in) == 0) records.push_back(Record(name, value_count));
  }
  std::shuffle(records.begin(), records.end(), random_);
  return Member("bubble_layer", Joined('{', records, '}'));
}

std::string RandomConfig::Valid() {
  std::vector<std::string> members;
  if (Flag()) members.push_back(Member("context_name", Text()));
  if (Flag()) {
    members.push_back(Member("multi_light_type", OneOf({"0", "-0", "7", "-3", "2147483647", "-2147483648"})));
  }
  if (Below(4) != 0) members.push_back(BubbleLayer());
  if (Flag()) members.push_back(Record("marker_bubble", MarkerBubbleConfig::kValueCount));
  std::shuffle(members.begin(), members.end(), random_);
  return Blank() + Joined('{', members, '}') + Blank();
}

void RandomConfig::ReplaceValue(std::string& text, const std::string& value) {
  const std::size_t begin = text.find_first_of(":[,", Below(text.size() + 1));
  if (begin == std::string::npos) return;
  const std::size_t end = std::min(text.find_first_of(",]}", begin + 1), text.size());
  text.replace(begin + 1, end - begin - 1, value);
}

std::string RandomConfig::Changed(std::string text) {
  const std::size_t place = Below(text.size() + 1);
  switch (Below(10)) {
    case 0:
    case 1:
      ReplaceValue(text, FloatNumber());
      break;
    case 2:
    case 3:
      ReplaceValue(text, Word());
      break;
    case 4:
      ReplaceValue(text, OneOf(OddValues()));
      break;
    case 5: {
      const std::size_t brace = text.find('{', place);
      if (brace != std::string::npos)
        text.insert(brace + 1, AnyRecord() + (text[brace + 1] == '}' ? "" : ","));
      break;
    }
    case 6: {
      const std::size_t begin = text.find(',', place);
      if (begin != std::string::npos) text.erase(begin, text.find_first_of(",]}", begin + 1) - begin);
      break;
    }
    case 7: {
      const std::size_t comma = text.find(',', place);
      if (comma != std::string::npos) text.insert(comma, "," + Word());
      break;
    }
    case 8:
      text.insert(place, OneOf({"{",
                                "}",
                                "[",
                                "]",
                                "\"",
                                ",",
                                ":",
                                "0",
                                "-",
                                ".",
                                "e",
                                " ",
                                "\\",
                                "\xEF\xBB\xBF",
                                "\x80",
                                "\x1F",
                                std::string(1, '\0'),
                                "//",
                                "values",
                                "name"}));
      break;
    default:
      if (place < text.size()) text.erase(place, 1);
  }
  return text;
}

}  // namespace kavrix::test
