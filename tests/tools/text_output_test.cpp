#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/tool.h"

namespace kavrix::test {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

const std::string kPrefix = "kavrix://resource/";
const std::string kGoodName = kPrefix + R"({"content":"c","mode":0}.trafficBubble)";

TEST(TextOutputTest, ShowsChangedMembersStyleRecordAndRecords) {
  const ToolResult result = RunTool({"decode", "--format", "text", kGoodName});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.output, HasSubstr("  kind        trafficBubble\n"));
  EXPECT_THAT(result.output, HasSubstr("    content         \"c\"\n"));
  EXPECT_THAT(result.output, HasSubstr("  style       traffic_style\n"));
  EXPECT_THAT(result.output,
              HasSubstr("    0  KavrixMapLayerMgr                GetBubbleDrawDescriptor         [Kavrix]"));
  EXPECT_THAT(result.output, Not(HasSubstr("    scene ")));
  EXPECT_THAT(result.output, Not(HasSubstr("\x1b[")));
}

TEST(TextOutputTest, WithAllShowsDefaultsToo) {
  EXPECT_THAT(RunTool({"decode", "--format", "text", "--all", kGoodName}).output,
              HasSubstr("    scene           0\n"));
}

TEST(TextOutputTest, EscapesWhatWouldForgeLinesOrColours) {
  const ToolResult result = RunTool({"decode", "--format", "text"}, "a\x1b[31mb\tc\n");
  EXPECT_THAT(result.output, HasSubstr("a\\u001b[31mb\\tc\n"));
  EXPECT_THAT(result.output, Not(HasSubstr("\x1b")));
}

TEST(TextOutputTest, ShowsStyleWordsInHexadecimalToo) {
  const std::string text = RunTool({"decode", "--format", "text", "--all", kGoodName}).output;
  EXPECT_THAT(text, HasSubstr("    style_word      4293216333 (0xffe5484d)\n"));
  EXPECT_THAT(text, HasSubstr("    style_word_2    4294967295 (0xffffffff)\n"));
  EXPECT_THAT(text, HasSubstr("    bubble_kind     1\n"));
}

TEST(TextOutputTest, MarkerTypeIsANameHereAndANumberInJson) {
  const std::string name = kPrefix + R"({"marker_type":5,"name":"A"}.marker)";
  EXPECT_THAT(RunTool({"decode", "--marker", "--format", "text", name}).output,
              HasSubstr("    marker_type  ChargingStation\n"));
  EXPECT_EQ(
      RunTool({"decode", "--marker", name}).JsonLines().at(0).at("descriptor").at("own").at("marker_type"),
      5);
  const std::string unknown = kPrefix + R"({"marker_type":99}.marker)";
  EXPECT_THAT(RunTool({"decode", "--marker", "--format", "text", unknown}).output,
              HasSubstr("    marker_type  99\n"));
}

TEST(TextOutputTest, TextOfAMemberEndsAtItsQuote) {
  const std::string name = kPrefix + R"({"content":"a\" lan \"\\\n\u001b"}.trafficBubble)";
  const std::string text = RunTool({"decode", "--format", "text", name}).output;
  EXPECT_THAT(text, HasSubstr("    content         "
                              R"("a\" lan \"\\\n\u001b")"
                              "\n"));
}

TEST(TextOutputTest, OnATerminalItComesInColourUnlessNoColorIsSet) {
  const ToolResult colour = RunShell("script -qec \"$TOOL decode nonsense\" /dev/null");
  EXPECT_THAT(colour.output, HasSubstr("\x1b[1mnonsense\x1b[0m\r\n  kind        \x1b[2mnone\x1b[0m\r\n"));
  const ToolResult plain = RunShell("NO_COLOR=1 script -qec \"$TOOL decode nonsense\" /dev/null");
  EXPECT_THAT(plain.output, HasSubstr("nonsense\r\n  kind        none\r\n"));
}

}  // namespace
}  // namespace kavrix::test
