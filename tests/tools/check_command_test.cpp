#include <gtest/gtest.h>

#include "tests/support/sample_names.h"
#include "tests/support/tool.h"

namespace kavrix::test {
namespace {

constexpr const char* kGood = "kavrix://resource/{\"mode\":1}.trafficBubble";
constexpr const char* kBad = "kavrix://resource/{\"mode\":1,\"contnt\":\"a\"}.trafficBubble";

TEST(CheckCommandTest, NamesInputNumberByteSeverityMessageAndCode) {
  const ToolResult result = RunTool({"check", kGood, kBad});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.output,
            "argument:2:29: warning: \"contnt\" is not a key of trafficBubble; did you mean \"content\"? "
            "[unknown-key]\n");
  EXPECT_EQ(result.errors, "");
}

TEST(CheckCommandTest, StandardInputIsADashAndNamesAreNumberedFromOneAlsoOnSeveralThreads) {
  std::string input;
  std::string expected;
  for (int i = 1; i <= 1000; ++i) {
    input += std::string(i % 3 == 0 ? "hello" : kGood) + "\n";
    if (i % 3 == 0) {
      expected +=
          "-:" + std::to_string(i) + ":0: error: no marker of a kind occurs in the name [no-marker]\n";
    }
  }
  const ToolResult result = RunTool({"check", "--jobs", "3"}, input);
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.output, expected);
}

TEST(CheckCommandTest, PlaceThatIsNotKnownIsAQuestionMark) {
  const ToolResult result = RunTool({"check", "kavrix://resource/{/**/\"mode\":1,\"x\":1}.trafficBubble"});
  EXPECT_EQ(result.output, "argument:1:?: warning: \"x\" is not a key of trafficBubble [unknown-key]\n");
}

TEST(CheckCommandTest, JsonHasOneLineForEachNameWithProblems) {
  const auto lines = RunTool({"check", "--format", "json", kGood, kBad}).JsonLines();
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0], nlohmann::json::parse(R"({
    "resource_name": "kavrix://resource/{\"mode\":1,\"contnt\":\"a\"}.trafficBubble", "number": 2,
    "problems": [{"code": "unknown-key", "severity": "warning", "bytes": [29, 35],
                  "message": "\"contnt\" is not a key of trafficBubble", "suggestion": "content"}]})"));
}

TEST(CheckCommandTest, SamplesAreClean) {
  for (const bool is_marker : {false, true}) {
    std::string names;
    for (const SampleName& sample : SampleNames()) {
      if (sample.is_marker == is_marker) names += sample.name + "\n";
    }
    ASSERT_NE(names, "");
    const ToolResult result = RunTool(
        is_marker ? std::vector<std::string>{"check", "--marker"} : std::vector<std::string>{"check"}, names);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.status, 0);
  }
}

TEST(CheckCommandTest, TakesThePrefixAndNulDelimitedNamesAsDecodeDoes) {
  const ToolResult result = RunTool({"check", "--null", "--prefix", "app://"},
                                    std::string("app://{\"mode\":1}.trafficBubble\0a\nb", 33));
  EXPECT_EQ(result.output, "-:2:0: error: no marker of a kind occurs in the name [no-marker]\n");
}

}  // namespace
}  // namespace kavrix::test
