#include "util/string_util.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <type_traits>
#include <vector>

namespace kavrix::test {
namespace {

static_assert(std::is_same_v<decltype(&SplitString),
                             std::vector<std::string> (*)(const std::string&, const std::string&,
                                                          WhitespaceHandling, SplitResult)>);
static_assert(std::is_same_v<decltype(&StringToInt), bool (*)(const std::string&, int*)>);
static_assert(std::is_same_v<decltype(&ToLowerASCII), std::string (*)(const std::string&)>);

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::string> Split(const std::string& text, const std::string& separators) {
  return SplitString(text, separators, WhitespaceHandling::kKeep, SplitResult::kAll);
}

TEST(SplitStringTest, ZeroOptionsKeepWhitespaceAndEmptyFields) {
  EXPECT_EQ(static_cast<int>(WhitespaceHandling::kKeep), 0);
  EXPECT_EQ(static_cast<int>(SplitResult::kAll), 0);
  EXPECT_THAT(Split(" a _\t_b\n", "_"), ElementsAre(" a ", "\t", "b\n"));
}

TEST(SplitStringTest, AdjacentSeparatorsGiveAnEmptyFieldBetweenThem) {
  EXPECT_THAT(Split("a@@b", "@"), ElementsAre("a", "", "b"));
}

TEST(SplitStringTest, SeparatorAtTheEndGivesAnEmptyLastField) {
  EXPECT_THAT(Split("a_b_", "_"), ElementsAre("a", "b", ""));
}

TEST(SplitStringTest, SeparatorAtTheBeginningGivesAnEmptyFirstField) {
  EXPECT_THAT(Split(".a", "."), ElementsAre("", "a"));
}

TEST(SplitStringTest, LoneSeparatorGivesTwoEmptyFields) { EXPECT_THAT(Split("@", "@"), ElementsAre("", "")); }

TEST(SplitStringTest, TextWithoutTheSeparatorIsOneField) {
  EXPECT_THAT(Split("a_b", "@"), ElementsAre("a_b"));
  EXPECT_THAT(Split("", "@"), ElementsAre(""));
}

TEST(SplitStringTest, EveryCharacterOfTheSeparatorsCuts) {
  EXPECT_THAT(Split("a_b@c.d", "@_"), ElementsAre("a", "b", "c.d"));
}

TEST(SplitStringTest, FieldsKeepNulAndUtf8Bytes) {
  EXPECT_THAT(Split(std::string("a\0b_前", 7), "_"), ElementsAre(std::string("a\0b", 3), "前"));
}

TEST(SplitStringTest, TrimmingDropsBlanksAtBothEndsOfAField) {
  EXPECT_THAT(SplitString(" a b \t_\n_c", "_", WhitespaceHandling::kTrim, SplitResult::kAll),
              ElementsAre("a b", "", "c"));
}

TEST(SplitStringTest, NoOtherCharacterIsTrimmed) {
  const std::string blanks = " \t\n\v\f\r";
  for (int c = 1; c < 256; ++c) {
    const std::string text(1, static_cast<char>(c));
    const std::string expected = blanks.find(text) == std::string::npos ? text : "";
    EXPECT_THAT(SplitString(text, "", WhitespaceHandling::kTrim, SplitResult::kAll), ElementsAre(expected));
  }
}

TEST(SplitStringTest, NonEmptyLeavesOutFieldsThatAreEmptyAfterTrimming) {
  EXPECT_THAT(SplitString("_a_ __b_", "_", WhitespaceHandling::kTrim, SplitResult::kNonEmpty),
              ElementsAre("a", "b"));
  EXPECT_THAT(SplitString("_a_ _", "_", WhitespaceHandling::kKeep, SplitResult::kNonEmpty),
              ElementsAre("a", " "));
  EXPECT_THAT(SplitString("", "_", WhitespaceHandling::kKeep, SplitResult::kNonEmpty), IsEmpty());
}

TEST(StringToIntTest, ReadsDecimalIntegersOfTheWholeSigned32BitRange) {
  const std::pair<const char*, int> texts[] = {{"0", 0},
                                               {"-0", 0},
                                               {"7", 7},
                                               {"+7", 7},
                                               {"-7", -7},
                                               {"007", 7},
                                               {"2147483647", 2147483647},
                                               {"+2147483647", 2147483647},
                                               {"-2147483648", std::numeric_limits<int>::min()}};
  for (const auto& [text, expected] : texts) {
    int value = 99;
    EXPECT_TRUE(StringToInt(text, &value)) << text;
    EXPECT_EQ(value, expected) << text;
  }
}

TEST(StringToIntTest, RefusesEverythingElseAndLeavesTheFieldUnchanged) {
  for (const std::string text :
       {"",    "12a", "a",   " 12",  "12 ",        "\t12",        "12\n",
        "1 2", "+",   "-",   "+-1",  "-+1",        "++1",         "--1",
        "+ 1", "1.0", "1e5", "0x10", "2147483648", "-2147483649", "99999999999999999999",
        "１"}) {
    int value = 99;
    EXPECT_FALSE(StringToInt(text, &value)) << text;
    EXPECT_EQ(value, 99) << text;
  }
  int value = 99;
  EXPECT_FALSE(StringToInt(std::string("12\0", 3), &value));
  EXPECT_EQ(value, 99);
}

TEST(ToLowerAsciiTest, LowersOnlyAToZ) {
  EXPECT_EQ(ToLowerASCII("ABCXYZ"), "abcxyz");
  EXPECT_EQ(ToLowerASCII("abc019@[`{_"), "abc019@[`{_");
  EXPECT_EQ(ToLowerASCII(""), "");
}

TEST(ToLowerAsciiTest, EveryOtherByteIsUnchanged) {
  EXPECT_EQ(ToLowerASCII("ÄÖÜ停车A"), "ÄÖÜ停车a");
  for (int byte = 0; byte < 256; ++byte) {
    const std::string text(1, static_cast<char>(byte));
    const bool is_upper = byte >= 'A' && byte <= 'Z';
    EXPECT_EQ(ToLowerASCII(text) == text, !is_upper) << byte;
  }
}

}  // namespace
}  // namespace kavrix::test
