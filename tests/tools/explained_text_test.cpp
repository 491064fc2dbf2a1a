#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/tool.h"

namespace kavrix::test {
namespace {

using ::testing::HasSubstr;

TEST(ExplainedTextTest, TextMarksThePartsOfTheNameAndEachProblem) {
  const ToolResult result = RunTool({"explain", "--format", "text", "kavrix://resource/路_0_x@2.nameBubble"});
  EXPECT_EQ(result.output,
            "kavrix://resource/路_0_x@2.nameBubble\n"
            "                  ~~ ~ x ~\n"
            "  kind  nameBubble\n"
            "    content         \"路\"                     name 18..21, content\n"
            "    bubble_kind     0                        the kind\n"
            "    direction       2                        name 26..27, direction\n"
            "    mode_flag       true                     name 22..23, mode           true when 0\n"
            "    style_name      \"route_name\"             route_name_style, its name\n"
            "    style_word      4282206812 (0xff3d4a5c)  route_name_style, value 2\n"
            "    style_scale[0]  1                        route_name_style, value 3\n"
            "    style_scale[1]  1                        route_name_style, value 3\n"
            "  24..25 ignored: not a number\n"
            "warning[not-a-number]: \"x\" is no number: \"scene\" is not read\n"
            "  --> byte 24\n"
            "  | kavrix://resource/路_0_x@2.nameBubble\n"
            "  |                        ^\n"
            "\n");
}

TEST(ExplainedTextTest, LongNameIsShownAroundTheProblemOnly) {
  const std::string name = "kavrix://resource/{\"content\":\"" + std::string(200, 'a') +
                           "\",\"mod\":1,\"lan\":\"" + std::string(200, 'b') + "\"}.trafficBubble";
  const ToolResult result = RunTool({"explain", "--format", "text", name});
  EXPECT_THAT(result.output, HasSubstr("  --> byte 233\n  | ..."));
  const std::string snippet = result.output.substr(result.output.find("  | ..."));
  const std::string line = snippet.substr(0, snippet.find('\n'));
  EXPECT_EQ(line.size(), 100U);
  EXPECT_THAT(line, HasSubstr("\"mod\":1"));
  EXPECT_EQ(line.substr(line.size() - 3), "...");
  const std::string marks =
      snippet.substr(line.size() + 1, snippet.find('\n', line.size() + 1) - line.size() - 1);
  EXPECT_EQ(line.substr(marks.find('^'), marks.rfind('^') + 1 - marks.find('^')), "mod");
  EXPECT_THAT(result.output, HasSubstr("  = did you mean \"mode\"?\n"));
}

}  // namespace
}  // namespace kavrix::test
