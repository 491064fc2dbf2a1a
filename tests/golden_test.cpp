#include "tests/support/golden.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>

#include "map_resource/bubble_markers.h"
#include "tests/support/tool.h"

namespace kavrix::test {
namespace {

// The golden file of a kind holds what "decode --format json" prints for its names, a line each. The names
// are taken from the lines themselves: to add one, add a line {"resource_name": "..."} and run the tests with
// --update-goldens.
struct Golden {
  std::string stem;
  std::string kind;  // null for marker names
};

const std::vector<Golden> kGoldens = {
    {"traffic_bubble", "trafficBubble"},
    {"route_name_bubble", "nameBubble"},
    {"indoor_entries_bubble", "inDoorEntriesBubble"},
    {"companion_bubble", "companionBubble"},
    {"camera_bubble", "cameraBubble"},
    {"eta_bubble", "etaBubble"},
    {"route_label_bubble", "labelBubble"},
    {"route_explain_bubble", "routeExplainBubble"},
    {"marker_bubble", "markerBubble"},
    {"light_countdown_bubble", "lightCountdownBubble"},
    {"multi_light_countdown_bubble", "multiLightCountdownBubble"},
    {"via_circle_bubble", "viaCircleBubble"},
    {"light_wait_bubble", "lightWaitBubble"},
    {"turn_bubble", "turnBubble"},
    {"hd_long_solid_bubble", "hdLongSolidBubble"},
    {"underground_park_bubble", "UndergroundParkBubble"},
    {"force_dot_bubble", "ForceDotBubble"},
    {"force_poll_bubble", "ForcePollBubble"},
    {"yaw_notice_bubble", "YawNoticeBubble"},
    {"route_accident_bubble", "RouteAccidentBubble"},
    {"safe_warning_bubble", "SafeWarningBubble"},
    {"lane_change_bubble", "LaneChangeBubble"},
    {"marker_name", ""},
};

std::string ReadAll(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

class GoldenTest : public ::testing::TestWithParam<Golden> {
 protected:
  std::string GoldenPath() const { return KAVRIX_SOURCE_DIR "/tests/golden/" + GetParam().stem + ".jsonl"; }
  std::string SamplesPath() const { return KAVRIX_SOURCE_DIR "/samples/" + GetParam().stem + ".txt"; }
  std::vector<std::string> MarkerOption() const {
    return GetParam().kind.empty() ? std::vector<std::string>{"--marker"} : std::vector<std::string>{};
  }
};

TEST_P(GoldenTest, NamesDecodeAsRecorded) {
  const std::string golden = ReadAll(GoldenPath());
  ASSERT_FALSE(golden.empty()) << "the kind has no golden file: " << GoldenPath();
  std::string names;
  for (const auto& line : ToolResult{0, golden, ""}.JsonLines()) {
    names += line.at("resource_name").get<std::string>() + '\0';
  }
  std::vector<std::string> arguments = {"decode", "--format", "json", "--null"};
  for (const std::string& option : MarkerOption()) arguments.push_back(option);
  const ToolResult result = RunTool(arguments, names);
  EXPECT_EQ(result.errors, "");
  if (update_goldens) {
    std::ofstream(GoldenPath(), std::ios::binary) << result.output;
    return;
  }
  EXPECT_EQ(result.output, golden);
}

TEST_P(GoldenTest, SamplesAreOfTheKindAndDecodeWithoutFailure) {
  std::vector<std::string> arguments = {"decode", "--format", "json"};
  for (const std::string& option : MarkerOption()) arguments.push_back(option);
  const ToolResult result = RunTool(arguments, ReadAll(SamplesPath()));
  EXPECT_EQ(result.status, 0);
  const auto lines = result.JsonLines();
  EXPECT_GE(lines.size(), 3U);
  for (const auto& line : lines) {
    EXPECT_EQ(line.at("kind").is_null() ? "" : line.at("kind").get<std::string>(), GetParam().kind);
  }
}

INSTANTIATE_TEST_SUITE_P(Kinds, GoldenTest, ::testing::ValuesIn(kGoldens),
                         [](const auto& test) { return test.param.stem; });

TEST(GoldenTest, EveryKindHasAGolden) {
  ASSERT_EQ(kGoldens.size(), kBubbleMarkers.size() + 1);
  for (std::size_t i = 0; i < kBubbleMarkers.size(); ++i) {
    EXPECT_EQ("." + kGoldens[i].kind, kBubbleMarkers[i]);
  }
}

}  // namespace
}  // namespace kavrix::test
