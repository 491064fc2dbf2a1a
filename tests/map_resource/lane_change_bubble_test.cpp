#include "tests/support/whole_name_test.h"

namespace kavrix::test {
namespace {

struct LaneChange {
  static constexpr const char* kMarker = ".LaneChangeBubble";
  using Descriptor = HDLaneChangeBubbleDrawDescriptor;
};
INSTANTIATE_TYPED_TEST_SUITE_P(LaneChange, WholeNameBubbleTest, LaneChange, MarkerWord);

using LaneChangeBubbleTest = WholeNameBubbleTest<LaneChange>;

TEST_F(LaneChangeBubbleTest, EveryKeyFillsItsMember) {
  const auto& bubble =
      DecodeOne(R"({"scene":3,"content":"文字","lan":"zh","type":6,"direction":2,"mode":0,"is_force_":1,)"
                R"("target_lane":2,"distance":350})");
  EXPECT_EQ(bubble.scene, 3);
  EXPECT_EQ(bubble.content, "文字");
  EXPECT_EQ(bubble.lan, "zh");
  EXPECT_EQ(bubble.type, 6);
  EXPECT_EQ(bubble.direction, 2);
  EXPECT_TRUE(bubble.mode_flag);
  EXPECT_TRUE(bubble.is_force);
  EXPECT_EQ(bubble.target_lane, 2);
  EXPECT_EQ(bubble.distance, 350);
}

TEST_F(LaneChangeBubbleTest, PrintsAllItsMembers) {
  EXPECT_EQ(
      Printed(DecodeOne(R"({"mode":1,"target_lane":2,"distance":350})")),
      "HDLaneChangeBubbleDrawDescriptor{scene:0, content:\"\", lan:\"\", bubble_kind:0, type:0, direction:0, "
      "mode_flag:false, style_name:\"\", icon:\"\", style_word:0, style_scale:[0.000000, 0.000000], "
      "selected:false, is_force:false, target_lane:2, distance:350}");
}

TEST_F(LaneChangeBubbleTest, KeysOfAnotherTypeKeepTheDefaults) {
  DecodeOne(R"({"scene":"3","content":5,"lan":[],"type":6.0,"direction":null,"mode":1,"is_force_":true,)"
            R"("target_lane":"2","distance":3000000000})");
  EXPECT_EQ(Base(), HDLaneChangeBubbleDrawDescriptor());
}

TEST_F(LaneChangeBubbleTest, NameShorterThanThePrefixDoesNotThrow) {
  transform_.ParseResourceName<HDLaneChangeBubbleDrawDescriptor>("{}", out_);
  EXPECT_TRUE(Out<HDLaneChangeBubbleDrawDescriptor>().mode_flag);
  transform_.ParseResourceName<HDLaneChangeBubbleDrawDescriptor>("", out_);
  EXPECT_EQ(Base(), HDLaneChangeBubbleDrawDescriptor());
}

}  // namespace
}  // namespace kavrix::test
