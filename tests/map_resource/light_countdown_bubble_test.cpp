#include <array>

#include "tests/support/decode_test.h"

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;

constexpr char kTag[] = "KavrixMapLayerMgr_LightCountdownTimer";
constexpr char kFunction[] = "ParseLightCountdownBubbleResourceName";

class LightCountdownBubbleTest : public DecodeTest {
 protected:
  // `rest` is the JSON text, "@" and the direction.
  const LightCountdownTimerDrawDescriptor& DecodeLight(const std::string& rest) {
    Decode(rest + ".lightCountdownBubble");
    return Out<LightCountdownTimerDrawDescriptor>();
  }
  void ExpectOnlyRoutineRecord() {
    EXPECT_THAT(
        records(),
        ElementsAre(Request(), Routine(kTag, kFunction, Printed(Out<LightCountdownTimerDrawDescriptor>()))));
  }
};

TEST_F(LightCountdownBubbleTest, EveryKeyFillsItsMember) {
  const auto& light = DecodeLight(
      R"({"is_force_":1,"scene":3,"mode":0,"id":"L7","style":2,"light_type":4,"turn_arrow_type":5,"time":38,)"
      R"("text":"剩余38秒"}@12)");
  EXPECT_TRUE(light.is_force);
  EXPECT_EQ(light.scene, 3);
  EXPECT_TRUE(light.mode_flag);
  EXPECT_EQ(light.id, "L7");
  EXPECT_EQ(light.style, 2);
  EXPECT_EQ(light.light_type, 4);
  EXPECT_EQ(light.turn_arrow_type, 5);
  EXPECT_EQ(light.time, 38);
  EXPECT_EQ(light.text, "剩余38秒");
  EXPECT_EQ(light.direction, 12);
}

TEST_F(LightCountdownBubbleTest, WhatTheNameDoesNotCarryStaysAsConstructed) {
  const auto& light = DecodeLight(
      R"({"content":"c","lan":"zh","bubble_kind":9,"type":4,"icon":"i","is_selected_":1,"direction":8}@1)");
  EXPECT_EQ(light.content, "");
  EXPECT_EQ(light.lan, "");
  EXPECT_EQ(light.bubble_kind, 0);
  EXPECT_EQ(light.type, 0);
  EXPECT_EQ(light.icon, "");
  EXPECT_FALSE(light.selected);
  EXPECT_EQ(light.style_name, "");
  EXPECT_EQ(light.style_word, 0U);
  EXPECT_EQ(light.style_scale, (std::array<float, 2>{0, 0}));
  EXPECT_EQ(light.direction, 1);
}

TEST_F(LightCountdownBubbleTest, RoutineRecordPrintsAllMembers) {
  DecodeLight(
      R"({"is_force_":1,"scene":-3,"mode":1,"id":"L7","style":2,"light_type":4,"turn_arrow_type":5,"time":38,)"
      R"("text":"go"}@12)");
  ExpectOnlyRoutineRecord();
  EXPECT_EQ(records()[1].message,
            "[Kavrix][ctx]LightCountdownTimerDrawDescriptor{scene:-3, content:\"\", lan:\"\", bubble_kind:0, "
            "type:0, direction:12, mode_flag:false, style_name:\"\", icon:\"\", style_word:0, "
            "style_scale:[0.000000, 0.000000], selected:false, is_force:true, id:\"L7\", style:2, "
            "light_type:4, turn_arrow_type:5, time:38, text:\"go\"}");
}

TEST_F(LightCountdownBubbleTest, NoSnapshotIsTaken) {
  DecodeLight("{}@1");
  EXPECT_EQ(snapshots(), 0);
  DecodeLight("broken");
  EXPECT_EQ(snapshots(), 0);
}

TEST_F(LightCountdownBubbleTest, EmptyObjectGivesTheDirectionAndAnInvertedModeFlag) {
  DecodeLight("{}@12");
  LightCountdownTimerDrawDescriptor expected;
  expected.direction = 12;
  expected.mode_flag = true;
  EXPECT_EQ(Base(), expected);
}

TEST_F(LightCountdownBubbleTest, OnlyModeZeroSetsTheFlag) {
  EXPECT_TRUE(DecodeLight(R"({"mode":0}@1)").mode_flag);
  EXPECT_FALSE(DecodeLight(R"({"mode":1}@1)").mode_flag);
  EXPECT_FALSE(DecodeLight(R"({"mode":2}@1)").mode_flag);
  EXPECT_FALSE(DecodeLight(R"({"mode":-1}@1)").mode_flag);
}

TEST_F(LightCountdownBubbleTest, MistypedModeInvertsTheFlagLikeAnAbsentOne) {
  for (const char* const mode : {"\"1\"", "1.0", "null", "true", "[1]", "{}", "4294967296"}) {
    EXPECT_TRUE(DecodeLight(std::string(R"({"mode":)") + mode + "}@1").mode_flag) << mode;
  }
}

TEST_F(LightCountdownBubbleTest, ForceCountsOnlyWhenOneAndUnderItsKeyWithTheUnderscore) {
  EXPECT_TRUE(DecodeLight(R"({"is_force_":1}@1)").is_force);
  EXPECT_FALSE(DecodeLight(R"({"is_force_":2}@1)").is_force);
  EXPECT_FALSE(DecodeLight(R"({"is_force_":-1}@1)").is_force);
  EXPECT_FALSE(DecodeLight(R"({"is_force":1}@1)").is_force);
}

TEST_F(LightCountdownBubbleTest, KeysOfAnotherTypeKeepTheDefaults) {
  DecodeLight(
      R"({"is_force_":"1","scene":1.5,"mode":1,"id":7,"style":"2","light_type":true,"turn_arrow_type":null,)"
      R"("time":3000000000,"text":["t"]}@1)");
  LightCountdownTimerDrawDescriptor expected;
  expected.direction = 1;
  EXPECT_EQ(Base(), expected);
}

TEST_F(LightCountdownBubbleTest, NamesWithoutExactlyOneAtAreNotDecodedAtAll) {
  for (const std::string rest : {"", R"({"scene":3})", R"({"scene":3}12)", R"({"scene":3}@12@13)",
                                 R"({"scene":3,"text":"a@b"}@12)", "broken", "@@"}) {
    DecodeLight(rest);
    EXPECT_EQ(Base(), LightCountdownTimerDrawDescriptor()) << rest;
    ExpectOnlyRoutineRecord();
  }
}

TEST_F(LightCountdownBubbleTest, BrokenJsonIsLoggedAndTheDirectionIsStillRead) {
  for (const std::string json : {"[1,2]", "", "{", "5", "null", "\"{}\"", R"({"scene":3,})"}) {
    DecodeLight(json + "@7");
    LightCountdownTimerDrawDescriptor expected;
    expected.direction = 7;
    EXPECT_EQ(Base(), expected) << json;
    EXPECT_THAT(records(), ElementsAre(Request(), Failure(kTag, kFunction, "parse json failed: " + json),
                                       Routine(kTag, kFunction, Printed(expected))));
  }
}

TEST_F(LightCountdownBubbleTest, DirectionThatIsNoNumberIsLeftAloneWithoutARecord) {
  for (const char* const direction : {"x", "", " 7", "7 ", "7x", "0x7", "2147483648", "7.5", "."}) {
    EXPECT_EQ(DecodeLight(std::string(R"({"scene":3}@)") + direction).direction, 0) << direction;
    EXPECT_EQ(Base().scene, 3);
    ExpectOnlyRoutineRecord();
  }
}

TEST_F(LightCountdownBubbleTest, TextAfterTheMarkerSpoilsTheDirectionOnlyWithADot) {
  Decode("{}@7.lightCountdownBubble2");
  EXPECT_EQ(Base().direction, 7);
  Decode("{}@7.lightCountdownBubble.png");
  EXPECT_EQ(Base().direction, 0);
}

TEST_F(LightCountdownBubbleTest, DirectionIsNarrowedTo16Bits) {
  EXPECT_EQ(DecodeLight("{}@70000").direction, 4464);
  EXPECT_EQ(DecodeLight("{}@-1").direction, -1);
  EXPECT_EQ(DecodeLight("{}@40000").direction, -25536);
}

TEST_F(LightCountdownBubbleTest, DotsInsideTheJsonTextDoNoHarm) {
  const auto& light = DecodeLight(R"({"text":"a.b.c"}@9)");
  EXPECT_EQ(light.text, "a.b.c");
  EXPECT_EQ(light.direction, 9);
}

TEST_F(LightCountdownBubbleTest, NameShorterThanThePrefixThrowsWithOutAlreadyReplaced) {
  EXPECT_THROW(transform_.ParseLightCountdownBubbleResourceName("kavrix://", out_), std::out_of_range);
  EXPECT_EQ(Base(), LightCountdownTimerDrawDescriptor());
  EXPECT_TRUE(records().empty());
}

TEST_F(LightCountdownBubbleTest, FailureIsLoggedBeforeTheDirectionIsRead) {
  EXPECT_THAT(DirectionsAtRecords("[1,2]@7.lightCountdownBubble"),
              ElementsAre(std::pair(0, 0), std::pair(1, 0), std::pair(0, 7)));
}

}  // namespace
}  // namespace kavrix::test
