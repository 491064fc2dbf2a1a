#include "tests/support/random_payloads.h"

#include <iterator>
#include <string_view>

namespace kavrix::test {
namespace {

constexpr const char* kKeys[] = {"a", "b",       "content", "scene", "",        "a ", "A",     "\xff",
                                 "é", "\\u0061", "\\n",     "k\x01", "cameras", "{",  "/*a*/", "content"};

constexpr const char* kTextPieces[] = {"x",
                                       "8 bytes.",
                                       "前方拥堵",
                                       "}",
                                       "{",
                                       "]",
                                       ",",
                                       ":",
                                       "//",
                                       "/*",
                                       "\\\"",
                                       "\\\\",
                                       "\\/",
                                       "\\b",
                                       "\\f",
                                       "\\n",
                                       "\\r",
                                       "\\t",
                                       "\\u0041",
                                       "\\u00e9",
                                       "\\u524d",
                                       "\\uFFFF",
                                       "\\u0000",
                                       "\\ud83d\\ude00",
                                       "\\uD83D",
                                       "\\ude00",
                                       "\\ud83d\\u0041",
                                       "\\ud83dx",
                                       "\\u12",
                                       "\\u12g4",
                                       "\\x",
                                       "\\'",
                                       "\\",
                                       "\x01",
                                       "\x7f",
                                       "\xc3",
                                       "\xf0\x9f\x98\x80",
                                       "\t",
                                       "\n",
                                       "'"};

constexpr const char* kNumbers[] = {"0",
                                    "-0",
                                    "1",
                                    "7",
                                    "-12",
                                    "90",
                                    "2147483647",
                                    "2147483648",
                                    "-2147483648",
                                    "-2147483649",
                                    "4294967295",
                                    "999999999999999999",
                                    "-999999999999999999",
                                    "1000000000000000000",
                                    "9223372036854775807",
                                    "9223372036854775808",
                                    "-9223372036854775808",
                                    "-9223372036854775809",
                                    "18446744073709551615",
                                    "18446744073709551616",
                                    "01",
                                    "-01",
                                    "00",
                                    "-",
                                    "+1",
                                    "1.0",
                                    "-1.5",
                                    "0.000000000000000001",
                                    "0.0000000000000000001",
                                    "1e5",
                                    "1E+5",
                                    "1e-5",
                                    "1.5e99",
                                    "1e-99",
                                    "1e100",
                                    "1e400",
                                    "1e-400",
                                    "5.",
                                    ".5",
                                    "-.5",
                                    "1e",
                                    "1e+",
                                    "1.e5",
                                    "1.5.2",
                                    "1-2",
                                    "NaN",
                                    "0x1"};

constexpr const char* kWords[] = {"true", "false", "null", "True", "tru", "nul", "falsex", "undefined"};

constexpr std::string_view kBytes =
    "{}[]\":,\\/*0123456789eE+-.tfnu x\n\t\r\0\x01\xff'"
    "a";

}  // namespace

std::string RandomPayloads::Next() {
  text_.clear();
  Between();
  Object(0);
  if (OneIn(8)) text_ += OneIn(2) ? " {}" : "x]}";
  for (std::size_t changes = Below(4); changes > 1; --changes) Change();
  return text_;
}

void RandomPayloads::Object(int depth) {
  text_ += '{';
  const std::size_t members = Below(6);
  for (std::size_t i = 0; i < members; ++i) {
    if (i > 0) text_ += ',';
    Between();
    text_ += '"';
    OneIn(12) ? OneOf(kKeys) : OneOf({"a", "b", "content", "scene", "cameras"});
    text_ += '"';
    Between();
    text_ += ':';
    Value(depth);
  }
  if (OneIn(40)) text_ += ',';
  Between();
  text_ += '}';
}

void RandomPayloads::Array(int depth) {
  text_ += '[';
  const std::size_t elements = Below(4);
  for (std::size_t i = 0; i < elements; ++i) {
    if (i > 0) text_ += ',';
    Value(depth);
  }
  if (OneIn(40)) text_ += ',';
  text_ += ']';
}

void RandomPayloads::Value(int depth) {
  Between();
  switch (Below(depth < 4 ? 8 : 6)) {
    case 6:
      Object(depth + 1);
      break;
    case 7:
      Array(depth + 1);
      break;
    case 0:
      OneIn(6) ? OneOf(kWords) : OneOf({"true", "false", "null"});
      break;
    case 1:
    case 2:
      Text();
      break;
    default:
      Number();
  }
  Between();
}

void RandomPayloads::Text() {
  text_ += '"';
  for (std::size_t pieces = Below(5); pieces > 0; --pieces) {
    OneIn(4) ? OneOf(kTextPieces) : OneOf({"x", "8 bytes.", "前方拥堵", "a.b_c@d", "\\n", "\\u0041"});
  }
  text_ += '"';
}

void RandomPayloads::Number() {
  if (OneIn(4)) return OneOf(kNumbers);
  text_ += std::to_string(static_cast<std::int64_t>(random_()) >> Below(64));
}

void RandomPayloads::Between() {
  if (!OneIn(6)) return;
  OneIn(12) ? OneOf({"/**/", "//\n", "/* } */", "/", "\v", "#"}) : OneOf({" ", "\t", "\n", "\r", "  "});
}

void RandomPayloads::Change() {
  if (text_.empty()) return;
  const std::size_t at = Below(text_.size());
  switch (Below(5)) {
    case 0:
      text_.erase(at, 1 + Below(3));
      break;
    case 1:
      text_.insert(at, 1, kBytes[Below(kBytes.size())]);
      break;
    case 2:
      text_[at] = kBytes[Below(kBytes.size())];
      break;
    case 3:
      text_.insert(Below(text_.size()), text_.substr(at, Below(12)));
      break;
    default:
      text_.resize(at);
  }
}

}  // namespace kavrix::test
