#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "map_resource/bubble_kinds.h"
#include "tests/support/golden.h"
#include "tests/support/read_file.h"
#include "tests/support/tool.h"

namespace kavrix::test {
namespace {

using ::testing::HasSubstr;

TEST(KindsCommandTest, ListsTheMarkersInOrderOfRecognitionThenMarkerNames) {
  const auto kinds = RunTool({"kinds"}).JsonLines();
  ASSERT_EQ(kinds.size(), AllKindInfos().size());
  for (std::size_t i = 0; i < kinds.size(); ++i) EXPECT_EQ(kinds[i].at("marker"), AllKindInfos()[i]->marker);
  EXPECT_EQ(kinds.back().at("marker"), ".marker");
}

TEST(KindsCommandTest, TellsWhatANameOfAKindCarries) {
  const auto kinds = RunTool({"kinds", "etaBubble"}).JsonLines();
  ASSERT_EQ(kinds.size(), 1U);
  EXPECT_EQ(kinds[0], nlohmann::json::parse(R"({
    "kind": "etaBubble", "marker": ".etaBubble", "kind_code": null, "descriptor_type": "DestNameEtaDrawDescriptor",
    "way": 2, "grammar": "content [\"|\" sub_text] \"_\" mode \"_\" unread \"_\" scene \"@\" direction",
    "keys": [{"key": "content", "type": "text", "rule": ""},
             {"key": "mode", "type": "flag", "rule": "true when 0"},
             {"key": "scene", "type": "integer", "rule": ""},
             {"key": "sub_text", "type": "text", "rule": ""},
             {"key": "direction", "type": "integer, low 16 bits", "rule": ""}],
    "sample": "kavrix://resource/Home|12 min_0_x_0@3.etaBubble"})"));
}

// The facts of each kind must agree with its decoded sample.
TEST(KindsCommandTest, TypeKindCodeAndSampleAgreeWithTheDecoder) {
  for (const auto& kind : RunTool({"kinds"}).JsonLines()) {
    const bool is_marker_name = kind.at("kind") == "marker";
    const std::string sample = kind.at("sample");
    const ToolResult decoded =
        is_marker_name ? RunTool({"decode", "--marker", sample}) : RunTool({"decode", sample});
    EXPECT_EQ(decoded.status, 0) << sample;
    const auto descriptor = decoded.JsonLines().at(0).at("descriptor");
    EXPECT_EQ(descriptor.at("type"), kind.at("descriptor_type"));
    const auto code = kind.at("kind_code");
    EXPECT_EQ(descriptor.at("base").at("bubble_kind"), code.is_null() ? nlohmann::json(0) : code) << sample;
  }
}

TEST(KindsCommandTest, TextIsForReading) {
  const ToolResult result = RunTool({"kinds", "--format", "text", ".turnBubble"});
  EXPECT_THAT(result.output,
              HasSubstr(".turnBubble\n  kind code   10\n  descriptor  TurnArrowBubbleDrawDescriptor\n"));
  EXPECT_THAT(result.output,
              HasSubstr("  keys        is_force_  flag, true when 1\n              type       integer"));
}

TEST(KindsCommandTest, UnknownKindIsAUsageErrorThatNamesIt) {
  const ToolResult result = RunTool({"kinds", "trafficbubble"});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.output, "");
  EXPECT_THAT(result.errors, HasSubstr("no kind is called \"trafficbubble\""));
}

TEST(KindsCommandTest, TheGrammarDocumentIsWhatTheToolPrints) {
  const std::string path = KAVRIX_SOURCE_DIR "/docs/resource-names.md";
  const std::string document = ReadFile(path);
  const std::string begin = "<!-- from here on: kavrix-resource kinds --format markdown -->\n\n";
  const std::size_t at = document.find(begin);
  ASSERT_NE(at, std::string::npos);
  const std::string printed = RunTool({"kinds", "--format", "markdown"}).output;
  if (update_goldens) {
    std::ofstream(path, std::ios::binary) << document.substr(0, at) << begin << printed;
    return;
  }
  EXPECT_EQ(FirstDifference(document.substr(at + begin.size()), printed), "") << kHowToUpdate;
}

}  // namespace
}  // namespace kavrix::test
