#include <gtest/gtest.h>

#include <string>

#include "util/json_nesting.h"

namespace kavrix::test {
namespace {

using JsonUtil::IsNestedDeeperThan;

TEST(JsonNestingTest, BlanksOfEveryKindStandBetweenBrackets) {
  for (const std::string blank : {"", " ", "\t", "\n", "\r", " \t\r\n"}) {
    const std::string text = blank + "[" + blank + "[" + blank + "1" + blank + "]" + blank + "]";
    EXPECT_TRUE(IsNestedDeeperThan(text, 2)) << text;
    EXPECT_FALSE(IsNestedDeeperThan(text, 3)) << text;
    EXPECT_FALSE(IsNestedDeeperThan("[" + blank + "]" + blank + "[[[1]]]", 2)) << text;
  }
}

TEST(JsonNestingTest, TextThatEndsAtASlash) { EXPECT_FALSE(IsNestedDeeperThan("[[]/", 2)); }

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
