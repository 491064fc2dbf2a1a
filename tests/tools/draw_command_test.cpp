#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/read_xml.h"
#include "tests/support/sample_names.h"
#include "tests/support/tool.h"

namespace kavrix::test {
namespace {

using ::testing::HasSubstr;

constexpr char kJam[] = R"(kavrix://resource/{"content":"Jam","mode":0}.trafficBubble)";

// All that a picture says, one after the other.
std::string Texts(const std::string& picture) {
  std::string texts;
  for (const XmlElement& element : Named(ReadXml(picture), "text")) texts += element.text + '\n';
  return texts;
}

TEST(DrawCommandTest, PrintsOnePicture) {
  const ToolResult result = RunTool({"draw", kJam});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.errors, "");
  EXPECT_EQ(ReadXml(result.output).at(0).name, "svg");
  EXPECT_EQ(Named(ReadXml(result.output), "title").at(0).text, "trafficBubble: Jam, day");
  EXPECT_THAT(Texts(result.output), HasSubstr("Jam\n"));
  EXPECT_EQ(RunTool({"draw"}, std::string(kJam) + "\n").output, result.output);
  EXPECT_EQ(RunTool({"draw"}, kJam).output, result.output);
}

TEST(DrawCommandTest, DrawsEverySample) {
  for (const SampleName& sample : SampleNames()) {
    std::vector<std::string> arguments = {"draw", sample.name};
    if (sample.is_marker) arguments.emplace_back("--marker");
    const ToolResult result = RunTool(arguments);
    EXPECT_EQ(result.status, 0) << sample.name;
    EXPECT_EQ(ReadXml(result.output).at(0).name, "svg");
  }
}

TEST(DrawCommandTest, TakesExactlyOneName) {
  for (const ToolResult& result : {RunTool({"draw"}), RunTool({"draw"}, "a\nb\n")}) {
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(result.errors, HasSubstr("expected one name"));
  }
  const ToolResult two = RunTool({"draw", kJam, "second"});
  EXPECT_EQ(two.status, 2);
  EXPECT_EQ(two.output, "");
  EXPECT_THAT(two.errors, HasSubstr("NAME: At Most 1 required but received 2"));
}

TEST(DrawCommandTest, BrokenNameIsDrawnAsFarAsItDecodes) {
  const ToolResult payload = RunTool({"draw", "kavrix://resource/{\"mode\":}.trafficBubble"});
  EXPECT_EQ(payload.status, 1);
  EXPECT_THAT(payload.errors, HasSubstr("kavrix-resource: the payload is no JSON object"));
  EXPECT_THAT(Texts(payload.output), HasSubstr("no JSON object"));
  EXPECT_EQ(Texts(payload.output).find("nothing is drawn"), std::string::npos);
  EXPECT_THAT(Texts(payload.output), HasSubstr("mode not known"));
}

TEST(DrawCommandTest, NameThatIsNotDecodedIsAPictureThatSaysSo) {
  for (const std::string name : {"kavrix://resource/x", "", "short"}) {
    const ToolResult result = RunTool({"draw"}, name + "\n");
    EXPECT_EQ(result.status, 1) << name;
    EXPECT_THAT(Texts(result.output), HasSubstr("nothing is drawn"));
    EXPECT_THAT(Texts(result.output), HasSubstr("no marker"));
    EXPECT_THAT(result.errors, HasSubstr("no marker"));
  }
  const ToolResult marker = RunTool({"draw", "--marker", "kavrix://resource/x.marker"});
  EXPECT_EQ(marker.status, 1);
  EXPECT_THAT(Texts(marker.output), HasSubstr("nothing is drawn"));
}

TEST(DrawCommandTest, OptionsAreThoseOfOtherCommands) {
  EXPECT_THAT(
      Texts(RunTool({"draw", "--prefix", "p:", R"(p:{"content":"Jam","mode":0}.trafficBubble)"}).output),
      HasSubstr("Jam\n"));
  EXPECT_THAT(RunTool({"draw", kJam}).output, HasSubstr("#e5484d"));
  const ToolResult config = RunShell(
      "printf '%s' '{\"context_name\":\"c\",\"multi_light_type\":0,\"bubble_layer\":{\"traffic_style\":"
      "{\"name\":\"mine\",\"values\":[0,\"0xff00ff01\"]}},\"marker_bubble\":{\"name\":\"\"}}' > "
      "/tmp/kavrix_draw_config.json; \"$TOOL\" draw --config /tmp/kavrix_draw_config.json '" +
      std::string(kJam) + "'; status=$?; rm /tmp/kavrix_draw_config.json; exit $status");
  EXPECT_EQ(config.status, 0) << config.errors;
  EXPECT_THAT(config.output, HasSubstr("#00ff01"));
  EXPECT_THAT(Texts(config.output), HasSubstr("style mine"));
  EXPECT_EQ(RunTool({"draw", "--config", "/nowhere.json", kJam}).status, 2);
  const std::string with_newline = "kavrix://resource/{\"content\":\"a\n\",\"mode\":0}.trafficBubble";
  EXPECT_EQ(RunTool({"draw", "--null"}, with_newline + '\0').status, 0);
  EXPECT_EQ(RunTool({"draw", "--jobs", "2", kJam}).status, 2);
  EXPECT_EQ(RunTool({"draw", "--context-name", "c", kJam}).status, 2);
}

TEST(DrawCommandTest, FullDiskIsAnError) {
  const ToolResult result = RunShell("\"$TOOL\" draw '" + std::string(kJam) + "' > /dev/full");
  EXPECT_EQ(result.status, 2);
  EXPECT_THAT(result.errors, HasSubstr("No space left on device"));
}

}  // namespace
}  // namespace kavrix::test
