#include "util/string_util.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace kavrix::test {
namespace {

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

TEST(SplitFieldsTest, GivesTheSameFieldsAsSplitString) {
  for (const std::string text : {"", "_", "a_b", "a_b_", "_a", "a__b", "a", " a _ "}) {
    const auto fields = SplitFields<3>(text, '_');
    const auto expected = Split(text, "_");
    ASSERT_EQ(fields.count, expected.size()) << text;
    for (std::size_t i = 0; i < fields.count; ++i) EXPECT_EQ(fields.at[i], expected[i]) << text;
  }
}

TEST(SplitFieldsTest, MoreFieldsThanAskedForCountAsOneMore) {
  EXPECT_EQ(SplitFields<2>("a.b", '.').count, 2U);
  EXPECT_EQ(SplitFields<2>("a.b.", '.').count, 3U);
  EXPECT_EQ(SplitFields<2>("a.b.c.d.e", '.').count, 3U);
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
  EXPECT_FALSE(StringToInt(std::string_view("12\0", 3), &value));
  EXPECT_EQ(value, 99);
}

TEST(LeadingIntTest, ReadsTheDigitsAfterBlanksAndASign) {
  EXPECT_EQ(LeadingInt("12"), 12);
  EXPECT_EQ(LeadingInt("-12"), -12);
  EXPECT_EQ(LeadingInt("+12"), 12);
  EXPECT_EQ(LeadingInt(" \t\n\v\f\r12"), 12);
  EXPECT_EQ(LeadingInt("12abc"), 12);
  EXPECT_EQ(LeadingInt("1.9"), 1);
  EXPECT_EQ(LeadingInt("0x10"), 0);
  EXPECT_EQ(LeadingInt(std::string_view("1\0002", 3)), 1);
}

TEST(LeadingIntTest, TextWithoutLeadingDigitsIsZero) {
  for (const char* const text : {"", " ", "a12", "-", "+", "+-12", "-+12", "--12", "- 12", "."}) {
    EXPECT_EQ(LeadingInt(text), 0) << text;
  }
}

TEST(LeadingIntTest, KeepsTheLow32BitsOfALargerValue) {
  EXPECT_EQ(LeadingInt("4294967301"), 5);
  EXPECT_EQ(LeadingInt("2147483648"), std::numeric_limits<int>::min());
  EXPECT_EQ(LeadingInt("-4294967301"), -5);
}

TEST(LeadingIntTest, ValueBeyond64BitsIsHeldAtTheEndOfThatRangeFirst) {
  EXPECT_EQ(LeadingInt("99999999999999999999"), -1);
  EXPECT_EQ(LeadingInt("-99999999999999999999"), 0);
}

// Texts of resource names are parts of these, with no NUL behind.
TEST(IntegersTest, NothingBehindTheTextIsRead) {
  EXPECT_EQ(LeadingInt(std::string_view("1234").substr(0, 2)), 12);
  EXPECT_EQ(LeadingInt(std::string_view(" +34").substr(0, 3)), 3);
  int value = 99;
  EXPECT_TRUE(StringToInt(std::string_view("1234").substr(0, 2), &value));
  EXPECT_EQ(value, 12);
  const std::vector<char> plus = {'+'};  // no byte behind it, which the sanitizers watch
  EXPECT_FALSE(StringToInt({plus.data(), 1}, &value));
  EXPECT_EQ(LeadingInt({plus.data(), 1}), 0);
}

TEST(ToLowerAsciiTest, LowersAToZAlone) {
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
