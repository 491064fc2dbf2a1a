#include "tests/support/decode_test.h"

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;

constexpr char kTag[] = "KavrixMapLayerMgr_BubbleTraffic";
constexpr char kFunction[] = "ParseTrafficBubbleResourceName";

class TrafficBubbleTest : public DecodeTest {
 protected:
  const TrafficDrawDescriptor& DecodeTraffic(const std::string& payload) {
    Decode(payload + ".trafficBubble");
    return Out<TrafficDrawDescriptor>();
  }
};

TEST_F(TrafficBubbleTest, EveryKeyFillsItsMember) {
  const auto& traffic = DecodeTraffic(
      R"({"content":"前方拥堵","direction":2,"mode":0,"light_text":"3个红灯","scene":0,"extra_type":7,"nav_mode":1})");
  EXPECT_EQ(traffic.content, "前方拥堵");
  EXPECT_EQ(traffic.direction, 2);
  EXPECT_TRUE(traffic.mode_flag);
  EXPECT_EQ(traffic.light_text, "3个红灯");
  EXPECT_EQ(traffic.scene, 0);
  EXPECT_EQ(traffic.extra_type, 7);
  EXPECT_EQ(traffic.bubble_kind, 1);
  EXPECT_EQ(traffic.lan, "");
  EXPECT_EQ(traffic.type, 0);
  EXPECT_EQ(traffic.icon, "");
  EXPECT_FALSE(traffic.selected);
  EXPECT_FALSE(traffic.is_force);
}

TEST_F(TrafficBubbleTest, RoutineRecordPrintsOnlyTheBaseMembers) {
  DecodeTraffic(R"({"content":"c","light_text":"not printed","mode":0})");
  EXPECT_THAT(records(), ElementsAre(Request(), Routine(kTag, kFunction, Printed(Base()))));
  EXPECT_EQ(records()[1].message,
            "[Kavrix][ctx]BubbleDrawDescriptor{scene:0, content:\"c\", lan:\"\", bubble_kind:1, type:0, "
            "direction:0, "
            "mode_flag:true, style_name:\"traffic_style\", icon:\"\", style_word:2002, "
            "style_scale:[203.500000, 203.500000], selected:false, is_force:false}");
}

TEST_F(TrafficBubbleTest, SceneZeroSelectsTrafficStyleWhateverNavModeIs) {
  for (const char* const nav_mode : {"0", "1", "2"}) {
    const auto& traffic = DecodeTraffic(std::string(R"({"scene":0,"nav_mode":)") + nav_mode + "}");
    EXPECT_EQ(traffic.style_name, "traffic_style");
    EXPECT_EQ(traffic.style_word, WordOf(2, 2));
  }
}

TEST_F(TrafficBubbleTest, OtherScenesWithNavModeOneSelectTrafficNavStyle) {
  const auto& traffic = DecodeTraffic(R"({"scene":3,"nav_mode":1})");
  EXPECT_EQ(traffic.style_name, "traffic_nav_style");
  EXPECT_EQ(traffic.style_word, WordOf(9, 2));
  EXPECT_EQ(traffic.style_scale[0], FloatOf(9, 3));
  EXPECT_EQ(traffic.style_scale[1], FloatOf(9, 3));
}

TEST_F(TrafficBubbleTest, AbsentNavModeCountsAsOne) {
  EXPECT_EQ(DecodeTraffic(R"({"scene":3})").style_name, "traffic_nav_style");
  EXPECT_EQ(DecodeTraffic(R"({"scene":-1,"nav_mode":"0"})").style_name, "traffic_nav_style");
}

TEST_F(TrafficBubbleTest, OtherScenesWithOtherNavModesSelectTrafficSceneStyle) {
  for (const char* const nav_mode : {"0", "2", "-1"}) {
    const auto& traffic = DecodeTraffic(std::string(R"({"scene":3,"nav_mode":)") + nav_mode + "}");
    EXPECT_EQ(traffic.style_name, "traffic_scene_style");
    EXPECT_EQ(traffic.style_word, WordOf(21, 2));
    EXPECT_EQ(traffic.style_float_1, FloatOf(21, 4) + (traffic.mode_flag ? 0 : 4));
  }
}

TEST_F(TrafficBubbleTest, ModeZeroSetsTheFlagAndTakesValues4To7) {
  const auto& traffic = DecodeTraffic(R"({"mode":0})");
  EXPECT_TRUE(traffic.mode_flag);
  EXPECT_EQ(traffic.style_float_1, FloatOf(2, 4));
  EXPECT_EQ(traffic.style_float_2, FloatOf(2, 5));
  EXPECT_EQ(traffic.style_float_3, FloatOf(2, 6));
  EXPECT_EQ(traffic.style_word_2, WordOf(2, 7));
}

TEST_F(TrafficBubbleTest, ModeOneClearsTheFlagAndTakesValues8To11) {
  const auto& traffic = DecodeTraffic(R"({"mode":1})");
  EXPECT_FALSE(traffic.mode_flag);
  EXPECT_EQ(traffic.style_float_1, FloatOf(2, 8));
  EXPECT_EQ(traffic.style_float_2, FloatOf(2, 9));
  EXPECT_EQ(traffic.style_float_3, FloatOf(2, 10));
  EXPECT_EQ(traffic.style_word_2, WordOf(2, 11));
}

TEST_F(TrafficBubbleTest, AbsentOrMistypedModeInvertsTheFlag) {
  EXPECT_TRUE(DecodeTraffic("{}").mode_flag);
  EXPECT_TRUE(DecodeTraffic(R"({"mode":"1"})").mode_flag);
  EXPECT_TRUE(DecodeTraffic(R"({"mode":1.0})").mode_flag);
  EXPECT_TRUE(DecodeTraffic(R"({"mode":null})").mode_flag);
}

TEST_F(TrafficBubbleTest, DirectionIsNarrowedTo16Bits) {
  EXPECT_EQ(DecodeTraffic(R"({"direction":70000})").direction, 4464);
  EXPECT_EQ(DecodeTraffic(R"({"direction":-1})").direction, -1);
  EXPECT_EQ(DecodeTraffic(R"({"direction":40000})").direction, -25536);
}

TEST_F(TrafficBubbleTest, KeysOfAnotherTypeKeepTheDefaults) {
  const auto& traffic = DecodeTraffic(
      R"({"content":5,"direction":"2","light_text":[],"scene":1.5,"extra_type":true,"nav_mode":{}})");
  EXPECT_EQ(traffic.content, "");
  EXPECT_EQ(traffic.direction, 0);
  EXPECT_EQ(traffic.light_text, "");
  EXPECT_EQ(traffic.scene, 0);
  EXPECT_EQ(traffic.extra_type, 0);
}

TEST_F(TrafficBubbleTest, BrokenPayloadLeavesADescriptorWithOnlyItsKindCode) {
  for (const std::string payload : {"", "{", "[1]", "5", "null", "\"{}\"", R"({"mode":0,})"}) {
    DecodeTraffic(payload);
    TrafficDrawDescriptor bare;
    bare.bubble_kind = 1;
    EXPECT_EQ(Base(), bare) << payload;
    EXPECT_THAT(records(), ElementsAre(Request(), Failure(kTag, kFunction, "parse json failed: " + payload)));
    EXPECT_EQ(snapshots(), 0);
  }
}

TEST_F(TrafficBubbleTest, OneSnapshotIsTakenForAGoodPayload) {
  DecodeTraffic("{}");
  EXPECT_EQ(snapshots(), 1);
}

TEST_F(TrafficBubbleTest, NameWithPrefixButShorterThanTheMarkerIsParsedToItsEnd) {
  transform_.ParseTrafficBubbleResourceName(MapResourceManager::kavrix_resource_prefix + std::string("{}"),
                                            out_);
  EXPECT_TRUE(Base().mode_flag);
  EXPECT_EQ(Base().style_name, "traffic_style");
}

TEST_F(TrafficBubbleTest, NameShorterThanThePrefixThrowsWithOutAlreadyReplaced) {
  const auto earlier = std::make_shared<BubbleDrawDescriptor>();
  out_ = earlier;
  EXPECT_THROW(DecodeWhole(".trafficBubble"), std::out_of_range);
  EXPECT_NE(out_, earlier);
  EXPECT_EQ(Out<TrafficDrawDescriptor>().bubble_kind, 1);
  EXPECT_THAT(records(), ElementsAre(Request()));
}

}  // namespace
}  // namespace kavrix::test
