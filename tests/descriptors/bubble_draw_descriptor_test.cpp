#include "descriptors/bubble_draw_descriptor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <iomanip>
#include <limits>
#include <memory>
#include <set>
#include <sstream>

#include "descriptors/descriptors.h"
#include "map_resource/bubble_kinds.h"
#include "tests/support/print_descriptor.h"

namespace kavrix::test {
namespace {

template <class Descriptor>
std::string Printed(const Descriptor& descriptor) {
  std::ostringstream stream;
  stream << std::fixed << std::setprecision(6) << descriptor;
  return stream.str();
}

constexpr char kBaseDefaults[] =
    "scene:0, content:\"\", lan:\"\", bubble_kind:0, type:0, direction:0, mode_flag:false, style_name:\"\", "
    "icon:\"\", style_word:0, style_scale:[0.000000, 0.000000], selected:false, is_force:false";

class NewDescriptorTest : public ::testing::Test {
 protected:
  // Expects every member to be zero, false or empty, and its own members to print after those of the base.
  template <class Descriptor>
  void ExpectNew(const std::string& type_name, const std::string& own_members) {
    tested_.insert(type_name);
    const Descriptor descriptor;
    EXPECT_EQ(descriptor.TypeName(), type_name);
    const std::string separator = own_members.empty() ? "" : ", ";
    EXPECT_EQ(Printed(descriptor), type_name + "{" + kBaseDefaults + separator + own_members + "}");
    const BubbleDrawDescriptor& base = descriptor;
    EXPECT_EQ(Printed(base), std::string("BubbleDrawDescriptor{") + kBaseDefaults + "}");
  }

  std::set<std::string> tested_;
};

TEST_F(NewDescriptorTest, OfEveryTypeHoldsDefaultsAndPrintsItsMembersInDeclarationOrder) {
  ExpectNew<BubbleDrawDescriptor>("BubbleDrawDescriptor", "");
  ExpectNew<TrafficDrawDescriptor>(
      "TrafficDrawDescriptor",
      "light_text:\"\", extra_type:0, style_float_1:0.000000, style_float_2:0.000000, "
      "style_float_3:0.000000, style_word_2:0");
  ExpectNew<IndoorEntriesBubbleDrawDescriptor>("IndoorEntriesBubbleDrawDescriptor",
                                               "entries_value:0, entries_text:\"\"");
  ExpectNew<CompanionBubbleDrawDescriptor>(
      "CompanionBubbleDrawDescriptor",
      "time:\"\", label:\"\", distance:\"\", fee:\"\", light:\"\", better:false, scene:0");
  ExpectNew<CameraDrawDescriptor>(
      "CameraDrawDescriptor",
      "cameras:[], distance:0, snap_text:\"\", plain_style_values:[0, 0, 0], mode_style_value:0");
  ExpectNew<DestNameEtaDrawDescriptor>("DestNameEtaDrawDescriptor",
                                       "sub_text:\"\", second_style_value:0, second_mode_style_value:0, "
                                       "third_mode_style_value:0, fourth_mode_style_value:0");
  ExpectNew<ExplainBubbleDrawDescriptor>(
      "ExplainBubbleDrawDescriptor",
      "uid:\"\", explain_content:\"\", second_content:[], second_type:0, scene_type:0, bubble_type:0");
  ExpectNew<LightCountdownTimerDrawDescriptor>(
      "LightCountdownTimerDrawDescriptor",
      "id:\"\", style:0, light_type:0, turn_arrow_type:0, time:0, text:\"\"");
  ExpectNew<MultiLightCountdownTimerDrawDescriptor>(
      "MultiLightCountdownTimerDrawDescriptor", "style:0, id:\"\", is_animation:false, light_descriptors:[]");
  ExpectNew<ViaPointDrawDescriptor>(
      "ViaPointDrawDescriptor",
      "route_id:\"\", index:0, is_selected:false, is_reached:false, is_main_map:false, resource_id:0");
  ExpectNew<LightWaitBubbleDrawDescriptor>("LightWaitBubbleDrawDescriptor", "");
  ExpectNew<TurnArrowBubbleDrawDescriptor>("TurnArrowBubbleDrawDescriptor", "distance:0");
  ExpectNew<HDLongSolidBubbleDrawDescriptor>("HDLongSolidBubbleDrawDescriptor", "");
  ExpectNew<YawNoticeBubbleDrawDescriptor>("YawNoticeBubbleDrawDescriptor", "reason:0");
  ExpectNew<RouteAccidentBubbleDrawDescriptor>("RouteAccidentBubbleDrawDescriptor",
                                               "accident_id:\"\", severity:0");
  ExpectNew<SafeWarningBubbleDrawDescriptor>("SafeWarningBubbleDrawDescriptor", "category:0, distance:0");
  ExpectNew<HDLaneChangeBubbleDrawDescriptor>("HDLaneChangeBubbleDrawDescriptor",
                                              "target_lane:0, distance:0");
  ExpectNew<MarkerDrawDescriptor>("MarkerDrawDescriptor",
                                  "marker_type:Poi, name:\"\", resource_id:0, is_main_map:false");
  for (const BubbleKindInfo* const info : AllKindInfos()) {
    EXPECT_EQ(tested_.count(info->descriptor_type), 1U) << info->descriptor_type << " is not tested here";
  }
}

TEST(BubbleDrawDescriptorTest, NewLightHasNoTurnArrow) {
  const MultiLightCountdownTimerDrawDescriptor::OneLightCountdownTimerDrawDescriptor light;
  EXPECT_EQ(light.light_type, 0);
  EXPECT_EQ(light.turn_arrow_type, -1);
  EXPECT_EQ(light.remain_time, 0);
  EXPECT_EQ(light.text, "");
  EXPECT_EQ(light.total_time, 0);
}

TEST(BubbleDrawDescriptorTest, ListsAndRecordsPrintInTheirBrackets) {
  CameraDrawDescriptor camera;
  camera.cameras = {{1, 60}, {-2, 0}};
  EXPECT_THAT(Printed(camera),
              ::testing::HasSubstr("cameras:[{type:1, speed:60}, {type:-2, speed:0}], distance:0"));
  MultiLightCountdownTimerDrawDescriptor lights;
  lights.light_descriptors.push_back({1, 2, 3, "t", 4});
  EXPECT_THAT(
      Printed(lights),
      ::testing::HasSubstr("light_descriptors:[{light_type:1, turn_arrow_type:2, remain_time:3, text:\"t\", "
                           "total_time:4}]}"));
  ExplainBubbleDrawDescriptor explain;
  explain.second_content = {"a", "b"};
  EXPECT_THAT(Printed(explain), ::testing::HasSubstr("second_content:[\"a\", \"b\"], second_type:0"));
}

TEST(BubbleDrawDescriptorTest, CompanionKeepsItsOwnSceneApartFromTheBases) {
  CompanionBubbleDrawDescriptor companion;
  companion.scene = 5;
  EXPECT_EQ(companion.BubbleDrawDescriptor::scene, 0);
  const BubbleDrawDescriptor& base = companion;
  EXPECT_EQ(base.scene, 0);
}

TEST(BubbleDrawDescriptorTest, SharedPointerToTheBaseCastsOnlyToItsOwnType) {
  const std::shared_ptr<BubbleDrawDescriptor> bubble = std::make_shared<TurnArrowBubbleDrawDescriptor>();
  const auto turn = std::dynamic_pointer_cast<TurnArrowBubbleDrawDescriptor>(bubble);
  EXPECT_EQ(turn, bubble);
  EXPECT_EQ(bubble.use_count(), 2);
  EXPECT_EQ(std::dynamic_pointer_cast<TrafficDrawDescriptor>(bubble), nullptr);
}

TEST(BubbleDrawDescriptorTest, DescriptorsAreEqualWhenTypeAndMembersAre) {
  EXPECT_EQ(TurnArrowBubbleDrawDescriptor(), TurnArrowBubbleDrawDescriptor());
  EXPECT_NE(LightWaitBubbleDrawDescriptor(), HDLongSolidBubbleDrawDescriptor());
  EXPECT_NE(LightWaitBubbleDrawDescriptor(), BubbleDrawDescriptor());
}

TEST(BubbleDrawDescriptorTest, FailedComparisonShowsAllMembers) {
  TurnArrowBubbleDrawDescriptor turn;
  turn.style_scale = {1, 1.00000012F};
  turn.distance = 7;
  const BubbleDrawDescriptor& base = turn;
  const std::string shown = ::testing::PrintToString(base);
  EXPECT_THAT(shown, ::testing::StartsWith("TurnArrowBubbleDrawDescriptor{scene:0, content:\"\""));
  EXPECT_THAT(shown, ::testing::HasSubstr("style_scale:[1, 1.00000012]"));
  EXPECT_THAT(shown, ::testing::EndsWith(", distance:7}"));
}

template <class Change>
void ExpectDifferent(Change change) {
  CameraDrawDescriptor changed;
  changed.cameras.resize(1);
  const CameraDrawDescriptor camera = changed;
  EXPECT_EQ(changed, camera);
  change(changed);
  EXPECT_NE(changed, camera);
}

TEST(BubbleDrawDescriptorTest, EveryMemberCountsForEquality) {
  ExpectDifferent([](auto& camera) { camera.scene = 1; });
  ExpectDifferent([](auto& camera) { camera.content = "c"; });
  ExpectDifferent([](auto& camera) { camera.lan = "l"; });
  ExpectDifferent([](auto& camera) { camera.bubble_kind = 1; });
  ExpectDifferent([](auto& camera) { camera.type = 1; });
  ExpectDifferent([](auto& camera) { camera.direction = 1; });
  ExpectDifferent([](auto& camera) { camera.mode_flag = true; });
  ExpectDifferent([](auto& camera) { camera.style_name = "s"; });
  ExpectDifferent([](auto& camera) { camera.icon = "i"; });
  ExpectDifferent([](auto& camera) { camera.style_word = 1; });
  ExpectDifferent([](auto& camera) { camera.style_scale[1] = 1; });
  ExpectDifferent([](auto& camera) { camera.selected = true; });
  ExpectDifferent([](auto& camera) { camera.is_force = true; });
  ExpectDifferent([](auto& camera) { camera.cameras[0].speed = 1; });
  ExpectDifferent([](auto& camera) { camera.cameras.clear(); });
  ExpectDifferent([](auto& camera) { camera.distance = 1; });
  ExpectDifferent([](auto& camera) { camera.snap_text = "s"; });
  ExpectDifferent([](auto& camera) { camera.plain_style_values[2] = 1; });
  ExpectDifferent([](auto& camera) { camera.mode_style_value = 1; });
}

}  // namespace
}  // namespace kavrix::test
