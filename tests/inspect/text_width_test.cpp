#include "inspect/text_width.h"

#include <gtest/gtest.h>

namespace kavrix::test {
namespace {

using inspect::CutText;
using inspect::FittingLength;
using inspect::TextWidth;

TEST(TextWidthTest, WideLettersTakeMore) {
  EXPECT_EQ(TextWidth("", {10}), 0);
  EXPECT_EQ(TextWidth("nnnn", {10}), 27);
  EXPECT_EQ(TextWidth("WWWW", {10}), 41);
  EXPECT_EQ(TextWidth("WWWW", {10, true}), 45);
  EXPECT_EQ(TextWidth("AAAA", {10}), 34);
  EXPECT_EQ(TextWidth("i, i", {10}), 20);
  EXPECT_EQ(TextWidth("前方", {10}), 21);
  EXPECT_EQ(TextWidth("\U0001F697", {10}), 13);
  EXPECT_EQ(TextWidth("n\xCC\x81", {10}), 8);
}

TEST(TextWidthTest, TextIsCutWhereItDoesNotFit) {
  EXPECT_EQ(CutText("nnnn", {10}, 27), "nnnn");
  EXPECT_EQ(CutText("nnnn", {10}, 26), "nn\u2026");
  EXPECT_EQ(CutText("前方前方", {10}, 33), "前方\u2026");
  EXPECT_EQ(CutText("n", {10}, 0), "\u2026");
  EXPECT_EQ(FittingLength("前方", {10}, 11), 3U);
}

TEST(TextWidthTest, EveryTextIsCutSomewhere) {
  std::string text = "a";
  for (int i = 0; i < 1000; ++i) text += "\xCC\x81";
  EXPECT_LT(CutText(text, {10}, 100).size(), 250U);
}

}  // namespace
}  // namespace kavrix::test
