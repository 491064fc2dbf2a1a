#include "util/escape.h"

#include <gtest/gtest.h>

namespace kavrix::test {
namespace {

std::string Escaped(std::string_view text) {
  std::string line = "before ";
  AppendEscaped(line, text);
  EXPECT_EQ(line.substr(0, 7), "before ");
  return line.substr(7);
}

std::string Quoted(std::string_view text) {
  std::string line;
  AppendQuoted(line, text);
  return line;
}

// Undoes the escapes of a text.
std::string Unescaped(std::string_view line) {
  std::string text;
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (line[i] != '\\') {
      text += line[i];
      continue;
    }
    const char letter = line.at(++i);
    const auto number = [&](std::size_t digits) {
      const std::string hex(line.substr(i + 1, digits));
      i += digits;
      return std::stoi(hex, nullptr, 16);
    };
    if (letter == 'x') {
      text += static_cast<char>(number(2));
    } else if (letter == 'u') {
      const int code_point = number(4);
      if (code_point >= 0x800) return "the escapes of this test are of one or two bytes";
      if (code_point >= 0x80) text += static_cast<char>(0xC0 | code_point >> 6);
      text += static_cast<char>(code_point < 0x80 ? code_point : 0x80 | (code_point & 0x3F));
    } else {
      const std::size_t place = std::string_view("nrt").find(letter);
      text += place == std::string_view::npos ? letter : "\n\r\t"[place];
    }
  }
  return text;
}

TEST(EscapeTest, TextThatNeedsNoEscapeStaysAsItIs) {
  for (const std::string text : {"", "a b  c", "前方拥堵", "é\xF0\x9F\x9A\x97", "{'k':1}@2.x", "\xC2\xA0"}) {
    EXPECT_EQ(Escaped(text), text);
    EXPECT_EQ(Quoted(text), '"' + text + '"');
  }
}

TEST(EscapeTest, ControlCharactersBackslashesAndBytesThatAreNotUtf8AreEscaped) {
  const std::string text = "a\n\r\tb\x1b\x7f\xC2\x85\xE2\x80\xA8\\c\xFF\xE2\x80z";
  EXPECT_EQ(Escaped(text), R"(a\n\r\tb\u001b\u007f\u0085\u2028\\c\xff\xe2\x80z)");
  EXPECT_EQ(Quoted(text), R"("a\n\r\tb\u001b\u007f\u0085\u2028\\c\xff\xe2\x80z")");
}

TEST(EscapeTest, HexadecimalDigitsAreTheLastOnes) {
  std::string line = "0x";
  AppendHex(line, 0x1ABCD, 4);
  AppendHex(line, 0xF, 2);
  EXPECT_EQ(line, "0xabcd0f");
}

TEST(EscapeTest, QuotesAreEscapedOnlyInsideQuotes) {
  EXPECT_EQ(Escaped(R"("a" \")"), R"("a" \\")");
  EXPECT_EQ(Quoted(R"("a" \")"), R"("\"a\" \\\"")");
}

TEST(EscapeTest, EscapedTextTellsExactlyWhatTheTextHeld) {
  for (int first = 0; first < 256; ++first) {
    for (int second = 0; second < 256; ++second) {
      const std::string text = {static_cast<char>(first), static_cast<char>(second)};
      EXPECT_EQ(Unescaped(Escaped(text)), text);
      const std::string quoted = Quoted(text);
      EXPECT_EQ(Unescaped(quoted.substr(1, quoted.size() - 2)), text);
    }
  }
}

}  // namespace
}  // namespace kavrix::test
