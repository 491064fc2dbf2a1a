#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "payload/json_nesting.h"

namespace kavrix::test {
namespace {

// Scans a copy with no byte after it; the sanitizers see a read past its end.
bool IsNestedDeeperThan(const std::string& text, std::size_t limit) {
  const std::vector<char> bytes(text.begin(), text.end());
  return kavrix::IsNestedDeeperThan({bytes.data(), bytes.size()}, limit);
}

TEST(JsonNestingTest, BlanksOfEveryKindStandBetweenBrackets) {
  for (const std::string blank : {"", " ", "\t", "\n", "\r", " \t\r\n"}) {
    const std::string text = blank + "[" + blank + "[" + blank + "1" + blank + "]" + blank + "]";
    EXPECT_TRUE(IsNestedDeeperThan(text, 2)) << text;
    EXPECT_FALSE(IsNestedDeeperThan(text, 3)) << text;
    EXPECT_FALSE(IsNestedDeeperThan("[" + blank + "]" + blank + "[[[1]]]", 2)) << text;
  }
}

TEST(JsonNestingTest, LineCommentHoldsEveryCharacterButLineEnds) {
  for (int c = 1; c < 256; ++c) {
    const bool ends = c == '\n' || c == '\r';
    EXPECT_EQ(IsNestedDeeperThan("[//" + std::string(1, static_cast<char>(c)) + "[[1]]]", 2), ends) << c;
  }
}

TEST(JsonNestingTest, TextThatEndsAtASlash) {
  EXPECT_FALSE(IsNestedDeeperThan("[[]/", 2));
  EXPECT_TRUE(IsNestedDeeperThan("[[/", 2));  // counts as a value
}

TEST(JsonNestingTest, TextThatEndsInsideAText) {
  EXPECT_FALSE(IsNestedDeeperThan(R"(["[[[)", 2));
  EXPECT_FALSE(IsNestedDeeperThan(R"(["[[[\)", 2));
}

TEST(JsonNestingTest, BracketsThatCloseNothing) {
  EXPECT_FALSE(IsNestedDeeperThan("][[[1]]]", 2));
  EXPECT_TRUE(IsNestedDeeperThan("[}[[1]]]", 2));
}

}  // namespace
}  // namespace kavrix::test
