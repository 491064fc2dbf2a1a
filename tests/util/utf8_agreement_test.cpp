// Compares the readers of UTF-8 with plain code.

#include "tests/support/utf8_agreement.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>

#include "tests/reference/utf8.h"
#include "tests/support/effort.h"

namespace kavrix::test {
namespace {

// The bytes at which the rules change.
const std::string kBytes =
    "\x1F !\"\\~\x7F\x80\x8F\x90\x9F\xA0\xBF\xC0\xC1\xC2\xDF\xE0\xE1\xEC\xED\xEE\xEF\xF0\xF1\xF4\xF5\xF8\xFF";

// On the heap without a byte to spare, so that the sanitizers notice reading past the end.
std::string DisagreementOfExactCopy(const std::string& text) {
  const std::unique_ptr<char[]> bytes(new char[text.size()]);
  text.copy(bytes.get(), text.size());
  return DisagreementOnUtf8({bytes.get(), text.size()});
}

TEST(Utf8AgreementTest, AllTextsOfThreeBytesAtWhichTheRulesChange) {
  for (const char first : kBytes) {
    for (const char second : kBytes) {
      for (const char third : kBytes) {
        ASSERT_EQ(DisagreementOfExactCopy({first, second, third}), "") << first << second << third;
      }
    }
  }
}

TEST(Utf8AgreementTest, TextsOfFourBytesThatBeginACharacterOfFourOrAlmost) {
  for (const char first : {'\xEF', '\xF0', '\xF1', '\xF3', '\xF4', '\xF5'}) {
    for (const char second : kBytes) {
      for (const char third : kBytes) {
        for (const char fourth : {'\x7F', '\x80', '\xBF', '\xC0'}) {
          ASSERT_EQ(DisagreementOfExactCopy({first, second, third, fourth}), "");
        }
      }
    }
  }
}

TEST(Utf8AgreementTest, LongTexts) {
  const unsigned seed = Seed();
  std::mt19937 random(seed);
  for (int left = IsComplete() ? 300'000 : 5000; left > 0; --left) {
    std::string text;
    for (auto pieces = random() % 30; pieces > 0; --pieces) {
      switch (random() % 4) {
        case 0:
          text += "plain ascii, more than a word of it";
          break;
        case 1:
          text += "前方é\U0001F6A6";
          break;
        case 2:
          text += kBytes[random() % kBytes.size()];
          break;
        default:
          text += static_cast<char>(random());
      }
    }
    ASSERT_EQ(DisagreementOfExactCopy(text), "") << HowToRepeat(seed);
  }
}

// What the standard gives as an example; the plain code must be right by itself.
TEST(Utf8AgreementTest, PlainCodeReplacesMaximalSubparts) {
  const std::string mark = "\xEF\xBF\xBD";
  EXPECT_EQ(reference::ReplaceInvalidUtf8("\x61\xF1\x80\x80\xE1\x80\xC2\x62\x80\x63\x80\xBF\x64"),
            "a" + mark + mark + mark + "b" + mark + "c" + mark + mark + "d");
  EXPECT_EQ(reference::ReplaceInvalidUtf8("\xED\xA0\x80"), mark + mark + mark);
  EXPECT_EQ(reference::FirstUtf8Unit("\xF4\x8F\xBF\xBF").code_point, 0x10FFFFU);
}

}  // namespace
}  // namespace kavrix::test
