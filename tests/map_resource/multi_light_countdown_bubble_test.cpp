#include "tests/support/decode_test.h"

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;

constexpr char kTag[] = "KavrixMapLayerMgr_LightCountdownTimer";
constexpr char kFunction[] = "ParseMultiLightCountdownBubbleResourceName";

class MultiLightCountdownBubbleTest : public DecodeTest {
 protected:
  using Light = MultiLightCountdownTimerDrawDescriptor::OneLightCountdownTimerDrawDescriptor;

  // `rest` is the JSON text, "@" and the direction.
  const MultiLightCountdownTimerDrawDescriptor& DecodeLights(const std::string& rest) {
    Decode(rest + ".multiLightCountdownBubble");
    return Out<MultiLightCountdownTimerDrawDescriptor>();
  }
  const std::vector<Light>& LightsOf(const std::string& array) {
    return DecodeLights(R"({"light_descriptors":)" + array + "}@0").light_descriptors;
  }
  void ExpectOnlyRoutineRecord() {
    EXPECT_THAT(records(),
                ElementsAre(Request(), Routine(kTag, kFunction,
                                               Printed(Out<MultiLightCountdownTimerDrawDescriptor>()))));
  }
  static void ExpectAsConstructed(const Light& light) {
    EXPECT_EQ(light.light_type, 0);
    EXPECT_EQ(light.turn_arrow_type, -1);
    EXPECT_EQ(light.remain_time, 0);
    EXPECT_EQ(light.text, "");
    EXPECT_EQ(light.total_time, 0);
  }
};

TEST_F(MultiLightCountdownBubbleTest, EveryKeyFillsItsMember) {
  const auto& lights = DecodeLights(
      R"({"is_force_":1,"scene":3,"mode":0,"style":2,"id":"M1","is_animation":1,"light_descriptors":)"
      R"([{"light_type":4,"turn_arrow_type":5,"remain_time":38,"text":"左转","total_time":90}]}@12)");
  EXPECT_TRUE(lights.is_force);
  EXPECT_EQ(lights.scene, 3);
  EXPECT_TRUE(lights.mode_flag);
  EXPECT_EQ(lights.style, 2);
  EXPECT_EQ(lights.id, "M1");
  EXPECT_TRUE(lights.is_animation);
  EXPECT_EQ(lights.direction, 12);
  EXPECT_EQ(lights.bubble_kind, 0);
  ASSERT_EQ(lights.light_descriptors.size(), 1U);
  EXPECT_EQ(lights.light_descriptors[0].light_type, 4);
  EXPECT_EQ(lights.light_descriptors[0].turn_arrow_type, 5);
  EXPECT_EQ(lights.light_descriptors[0].remain_time, 38);
  EXPECT_EQ(lights.light_descriptors[0].text, "左转");
  EXPECT_EQ(lights.light_descriptors[0].total_time, 90);
}

TEST_F(MultiLightCountdownBubbleTest, RoutineRecordPrintsAllMembersAndLights) {
  DecodeLights(R"({"is_animation":1,"id":"M1","light_descriptors":[{"text":"a","remain_time":3},{}]}@12)");
  ExpectOnlyRoutineRecord();
  EXPECT_EQ(records()[1].message,
            "[Kavrix][ctx]MultiLightCountdownTimerDrawDescriptor{scene:0, content:\"\", lan:\"\", "
            "bubble_kind:0, type:0, direction:12, mode_flag:true, style_name:\"\", icon:\"\", style_word:0, "
            "style_scale:[0.000000, 0.000000], selected:false, is_force:false, style:0, id:\"M1\", "
            "is_animation:true, light_descriptors:[{light_type:0, turn_arrow_type:-1, remain_time:3, "
            "text:\"a\", total_time:0}, {light_type:0, turn_arrow_type:-1, remain_time:0, text:\"\", "
            "total_time:0}]}");
}

TEST_F(MultiLightCountdownBubbleTest, LightWithoutKeysHasNoTurnArrow) {
  const auto& lights = DecodeLights(R"({"light_descriptors":[{}]}@0)");
  ASSERT_EQ(lights.light_descriptors.size(), 1U);
  ExpectAsConstructed(lights.light_descriptors[0]);
  EXPECT_EQ(lights.direction, 0);
}

TEST_F(MultiLightCountdownBubbleTest, LightsComeInArrayOrder) {
  const auto& lights = LightsOf(R"([{"text":"a"},{"text":"b"},{"text":"c"}])");
  ASSERT_EQ(lights.size(), 3U);
  EXPECT_EQ(lights[0].text, "a");
  EXPECT_EQ(lights[1].text, "b");
  EXPECT_EQ(lights[2].text, "c");
}

TEST_F(MultiLightCountdownBubbleTest, EmptyArrayGivesNoLight) { EXPECT_TRUE(LightsOf("[]").empty()); }

TEST_F(MultiLightCountdownBubbleTest, EachNameStartsWithAnEmptyList) {
  EXPECT_EQ(LightsOf("[{},{}]").size(), 2U);
  EXPECT_EQ(LightsOf("[{}]").size(), 1U);
}

TEST_F(MultiLightCountdownBubbleTest, ListThatIsNoArrayAddsNothingAndIsNotLogged) {
  for (const char* const list : {R"({"light_type":4})", "null", "5", "\"[]\"", "true"}) {
    EXPECT_TRUE(LightsOf(list).empty()) << list;
    ExpectOnlyRoutineRecord();
  }
  EXPECT_TRUE(DecodeLights("{}@0").light_descriptors.empty());
  ExpectOnlyRoutineRecord();
}

TEST_F(MultiLightCountdownBubbleTest, ElementOfAnyJsonTypeGivesOneLight) {
  const auto& lights = LightsOf(R"([1,-2.5,null,true,"light_type",[],[{"light_type":9}],{"light_type":7}])");
  ASSERT_EQ(lights.size(), 8U);
  for (std::size_t i = 0; i < 7; ++i) ExpectAsConstructed(lights[i]);
  EXPECT_EQ(lights[7].light_type, 7);
  ExpectOnlyRoutineRecord();
}

TEST_F(MultiLightCountdownBubbleTest, KeysOfALightOfAnotherTypeKeepItsDefaults) {
  const auto& lights = LightsOf(
      R"([{"light_type":"1","turn_arrow_type":2.0,"remain_time":null,"text":3,"total_time":3000000000}])");
  ASSERT_EQ(lights.size(), 1U);
  ExpectAsConstructed(lights[0]);
}

TEST_F(MultiLightCountdownBubbleTest, TypeComesFromTheContextAsItIsAtTheCall) {
  context_->multi_light_type = 6;
  EXPECT_EQ(DecodeLights(R"({"type":2}@0)").type, 6);
  context_->multi_light_type = 7;
  EXPECT_EQ(DecodeLights("{}@0").type, 7);
}

TEST_F(MultiLightCountdownBubbleTest, TypeIsNarrowedTo16Bits) {
  context_->multi_light_type = 70000;
  EXPECT_EQ(DecodeLights("{}@0").type, 4464);
  context_->multi_light_type = -1;
  EXPECT_EQ(DecodeLights("{}@0").type, -1);
  context_->multi_light_type = 40000;
  EXPECT_EQ(DecodeLights("{}@0").type, -25536);
}

TEST_F(MultiLightCountdownBubbleTest, NamesWithoutExactlyOneAtHaveOnlyTheirType) {
  context_->multi_light_type = 6;
  MultiLightCountdownTimerDrawDescriptor expected;
  expected.type = 6;
  for (const std::string rest : {"", R"({"scene":3})", R"({"scene":3}@12@13)", R"({"id":"a@b"}@12)"}) {
    DecodeLights(rest);
    EXPECT_EQ(Base(), expected) << rest;
    ExpectOnlyRoutineRecord();
  }
}

TEST_F(MultiLightCountdownBubbleTest, BrokenJsonIsLoggedAndTypeAndDirectionAreStillThere) {
  context_->multi_light_type = 6;
  for (const std::string json : {"[{}]", "", "{", "5", "null", R"({"light_descriptors":[{}],})"}) {
    DecodeLights(json + "@7");
    MultiLightCountdownTimerDrawDescriptor expected;
    expected.type = 6;
    expected.direction = 7;
    EXPECT_EQ(Base(), expected) << json;
    EXPECT_THAT(records(), ElementsAre(Request(), Failure(kTag, kFunction, "parse json failed: " + json),
                                       Routine(kTag, kFunction, Printed(expected))));
  }
}

TEST_F(MultiLightCountdownBubbleTest, AnimationAndForceCountOnlyWhenOne) {
  EXPECT_TRUE(DecodeLights(R"({"is_animation":1}@0)").is_animation);
  EXPECT_FALSE(DecodeLights(R"({"is_animation":2}@0)").is_animation);
  EXPECT_FALSE(DecodeLights(R"({"is_animation":-1}@0)").is_animation);
  EXPECT_FALSE(DecodeLights("{}@0").is_animation);
  EXPECT_TRUE(DecodeLights(R"({"is_force_":1}@0)").is_force);
  EXPECT_FALSE(DecodeLights(R"({"is_force_":2}@0)").is_force);
  EXPECT_FALSE(DecodeLights(R"({"is_force":1}@0)").is_force);
}

TEST_F(MultiLightCountdownBubbleTest, AbsentOrMistypedModeInvertsTheFlag) {
  EXPECT_TRUE(DecodeLights("{}@0").mode_flag);
  EXPECT_TRUE(DecodeLights(R"({"mode":"1"}@0)").mode_flag);
  EXPECT_TRUE(DecodeLights(R"({"mode":0}@0)").mode_flag);
  EXPECT_FALSE(DecodeLights(R"({"mode":1}@0)").mode_flag);
  EXPECT_FALSE(DecodeLights(R"({"mode":2}@0)").mode_flag);
}

TEST_F(MultiLightCountdownBubbleTest, KeysOfAnotherTypeKeepTheDefaults) {
  DecodeLights(R"({"is_force_":true,"scene":"3","mode":1,"style":2.0,"id":5,"is_animation":"1"}@0)");
  EXPECT_EQ(Base(), MultiLightCountdownTimerDrawDescriptor());
}

TEST_F(MultiLightCountdownBubbleTest, DirectionThatIsNoNumberIsLeftAloneWithoutARecord) {
  for (const char* const direction : {"x", "", " 7", "7x", "2147483648", "7.5"}) {
    EXPECT_EQ(DecodeLights(std::string("{}@") + direction).direction, 0) << direction;
    ExpectOnlyRoutineRecord();
  }
}

TEST_F(MultiLightCountdownBubbleTest, DirectionIsNarrowedTo16Bits) {
  EXPECT_EQ(DecodeLights("{}@70000").direction, 4464);
  EXPECT_EQ(DecodeLights("{}@-1").direction, -1);
}

TEST_F(MultiLightCountdownBubbleTest, NoSnapshotIsTaken) {
  DecodeLights("{}@1");
  EXPECT_EQ(snapshots(), 0);
  DecodeLights("broken");
  EXPECT_EQ(snapshots(), 0);
}

TEST_F(MultiLightCountdownBubbleTest, NameShorterThanThePrefixThrowsWithTheTypeAlreadySet) {
  context_->multi_light_type = 6;
  EXPECT_THROW(transform_.ParseMultiLightCountdownBubbleResourceName("kavrix://", out_), std::out_of_range);
  MultiLightCountdownTimerDrawDescriptor expected;
  expected.type = 6;
  EXPECT_EQ(Base(), expected);
  EXPECT_TRUE(records().empty());
}

TEST_F(MultiLightCountdownBubbleTest, FailureIsLoggedBeforeTheDirectionIsRead) {
  EXPECT_THAT(DirectionsAtRecords("[1,2]@7.multiLightCountdownBubble"),
              ElementsAre(std::pair(0, 0), std::pair(1, 0), std::pair(0, 7)));
}

}  // namespace
}  // namespace kavrix::test
