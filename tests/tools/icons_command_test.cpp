#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/tool.h"

namespace kavrix::test {
namespace {

TEST(IconsCommandTest, ListsAllIcons) {
  const auto icons = RunTool({"icons"}).JsonLines();
  ASSERT_EQ(icons.size(), 101U);
  EXPECT_EQ(icons[0], nlohmann::json::parse(R"({"day_id":1,"night_id":257,
      "day_description":"白天-鹰眼图车标罗盘","night_description":"夜间-鹰眼图车标罗盘"})"));
}

TEST(IconsCommandTest, FindsByDayOrNightIdInDecimalOrHexadecimal) {
  for (const char* const id : {"0x10001", "65537", "0x10101", "65793", "0X10001"}) {
    const auto icons = RunTool({"icons", id}).JsonLines();
    ASSERT_EQ(icons.size(), 1U) << id;
    EXPECT_EQ(icons[0].at("day_description"), "白天-鹰眼图起点");
  }
}

TEST(IconsCommandTest, FindsByTextOfEitherDescription) {
  EXPECT_EQ(RunTool({"icons", "注意落石"}).JsonLines().size(), 2U);
  EXPECT_EQ(RunTool({"icons", "警示牌- 连续弯路"}).JsonLines().size(), 1U);
}

TEST(IconsCommandTest, QueryThatFindsNothingIsNamedAndTheOthersGoOn) {
  const ToolResult result = RunTool({"icons", "0x3", "0x1"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.errors, "kavrix-resource: no icon has the id or the text \"0x3\"\n");
  EXPECT_EQ(result.JsonLines().size(), 1U);
}

TEST(IconsCommandTest, TextIsForReading) {
  EXPECT_EQ(RunTool({"icons", "--format", "text", "0x3011f"}).output,
            "  0x3001f    0x3011f  白天-警示牌-隧道开灯  夜间-警示牌- 隧道开灯\n");
}

}  // namespace
}  // namespace kavrix::test
