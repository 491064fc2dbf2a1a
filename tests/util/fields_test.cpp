#include "util/fields.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "util/string_util.h"

namespace kavrix::test {
namespace {

TEST(SplitFieldsTest, GivesTheSameFieldsAsSplitString) {
  for (const std::string text : {"", "_", "a_b", "a_b_", "_a", "a__b", "a", " a _ "}) {
    const auto fields = SplitFields<3>(text, '_');
    const auto expected = SplitString(text, "_", WhitespaceHandling::kKeep, SplitResult::kAll);
    ASSERT_EQ(fields.count, expected.size()) << text;
    for (std::size_t i = 0; i < fields.count; ++i) EXPECT_EQ(fields.at[i], expected[i]) << text;
  }
}

TEST(SplitFieldsTest, MoreFieldsThanAskedForCountAsOneMore) {
  EXPECT_EQ(SplitFields<2>("a.b", '.').count, 2U);
  EXPECT_EQ(SplitFields<2>("a.b.", '.').count, 3U);
  EXPECT_EQ(SplitFields<2>("a.b.c.d.e", '.').count, 3U);
}

TEST(ReadIntTest, ReadsWhatStringToIntReads) {
  for (const std::string text :
       {"0", "-7", "+7", "007", "2147483647", "2147483648", "", "+", "+-1", " 1", "1 ", "1.0"}) {
    int number = 99;
    int expected = 99;
    EXPECT_EQ(ReadInt(text, number), StringToInt(text, &expected)) << text;
    EXPECT_EQ(number, expected) << text;
  }
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

// Fields are parts of a resource name, with no NUL after them.
TEST(IntegersTest, NothingAfterTheTextIsRead) {
  EXPECT_EQ(LeadingInt(std::string_view("1234").substr(0, 2)), 12);
  EXPECT_EQ(LeadingInt(std::string_view(" +34").substr(0, 3)), 3);
  int value = 99;
  EXPECT_TRUE(ReadInt(std::string_view("1234").substr(0, 2), value));
  EXPECT_EQ(value, 12);
  const std::vector<char> plus = {'+'};  // no byte after it, which the sanitizers watch
  EXPECT_FALSE(ReadInt({plus.data(), 1}, value));
  EXPECT_EQ(LeadingInt({plus.data(), 1}), 0);
}

}  // namespace
}  // namespace kavrix::test
