#include "tools/progress.h"

#include <gtest/gtest.h>

namespace kavrix::test {
namespace {

using tools::ProgressCounts;
using tools::ProgressText;

TEST(ProgressTextTest, ShowsNamesSpeedAndFailures) {
  EXPECT_EQ(ProgressText({100'000, 17, 9'000'000, {}}, 2.5), "100000 names, 40000 a second, 17 failed");
}

TEST(ProgressTextTest, ShowsTheTimeLeftWhereTheSizeIsKnown) {
  const auto left = [](std::uint64_t bytes, double seconds) {
    const std::string text = ProgressText({1, 0, bytes, 1000}, seconds);
    return text.substr(text.find("failed") + 6);
  };
  EXPECT_EQ(left(500, 9), ", 0:09 left");
  EXPECT_EQ(left(250, 30), ", 1:30 left");
  EXPECT_EQ(left(1, 10), ", 2:46:30 left");
  EXPECT_EQ(left(100, 405), ", 1:00:45 left");
  EXPECT_EQ(left(1000, 9), ", 0:00 left");
}

TEST(ProgressTextTest, NobodyKnowsTheTimeLeftOfAFileThatGrew) {
  EXPECT_EQ(ProgressText({1, 0, 1001, 1000}, 1), "1 names, 1 a second, 0 failed");
  EXPECT_EQ(ProgressText({0, 0, 0, 1000}, 1), "0 names, 0 a second, 0 failed");
}

}  // namespace
}  // namespace kavrix::test
