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
