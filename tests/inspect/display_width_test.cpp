#include "inspect/display_width.h"

#include <gtest/gtest.h>

namespace kavrix::test {
namespace {

using inspect::CutText;
using inspect::DisplayWidth;
using inspect::FittingLength;
using inspect::Padded;

TEST(DisplayWidthTest, CountsWideAndCombiningCharacters) {
  EXPECT_EQ(DisplayWidth("abc"), 3U);
  EXPECT_EQ(DisplayWidth("前方"), 4U);
  EXPECT_EQ(DisplayWidth("e\xCC\x81"), 1U);
  EXPECT_EQ(DisplayWidth("\xFF"), 1U);
  EXPECT_EQ(Padded("前", 4), "前  ");
  for (const char* const emoji : {"\U0001F680", "\U0001F6FF", "\u26A1", "\u2705", "\u26FD", "\U0001F7E0",
                                  "\U0001F7EB", "\U0001F697", "\u231A", "\U0001FA70"}) {
    EXPECT_EQ(DisplayWidth(emoji), 2U) << emoji;
  }
  for (const char* const narrow : {"\u2713", "\u26A0", "\u2192", "\u00E9", "\U0001F780"}) {
    EXPECT_EQ(DisplayWidth(narrow), 1U) << narrow;
  }
}

TEST(FittingLengthTest, TakesWholeCharactersThatFit) {
  EXPECT_EQ(FittingLength("abc", 2), 2U);
  EXPECT_EQ(FittingLength("abc", 3), 3U);
  EXPECT_EQ(FittingLength("abc", 9), 3U);
  EXPECT_EQ(FittingLength("前方", 3), 3U);
  EXPECT_EQ(FittingLength("前方", 4), 6U);
  EXPECT_EQ(FittingLength("e\xCC\x81x", 1), 3U);
  EXPECT_EQ(FittingLength("abc", 0), 0U);
  EXPECT_EQ(FittingLength("", 5), 0U);
}

TEST(FittingLengthTest, IsBoundedWhereCharactersTakeNoRoom) {
  std::string text = "a";
  for (int i = 0; i < 1000; ++i) text += "\xCC\x81";
  EXPECT_EQ(FittingLength(text, 2), 1U + 7U * 2U);
}

TEST(CutTextTest, EndsInDotsWhereSomethingIsMissing) {
  EXPECT_EQ(CutText("abc", 3), "abc");
  EXPECT_EQ(CutText("abcd", 3), "ab\u2026");
  EXPECT_EQ(CutText("前方", 3), "前\u2026");
  EXPECT_EQ(CutText("", 3), "");
}

}  // namespace
}  // namespace kavrix::test
