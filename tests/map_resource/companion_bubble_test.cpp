#include "tests/support/decode_test.h"

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;

constexpr char kTag[] = "KavrixMapLayerMgr_BubbleCompanion";
constexpr char kTrafficTag[] = "KavrixMapLayerMgr_BubbleTraffic";
constexpr char kFunction[] = "ParseCompanionBubbleResourceName";

class CompanionBubbleTest : public DecodeTest {
 protected:
  const CompanionBubbleDrawDescriptor& DecodeCompanion(const std::string& payload) {
    Decode(payload + ".companionBubble");
    return Out<CompanionBubbleDrawDescriptor>();
  }

  // Returns the descriptor of a name whose fields cannot be read.
  static CompanionBubbleDrawDescriptor OnlyStyle() {
    CompanionBubbleDrawDescriptor companion;
    companion.style_name = "companion_style";
    companion.style_word = WordOf(3, 4);
    companion.style_scale = {FloatOf(3, 6), FloatOf(3, 7)};
    return companion;
  }
};

constexpr char kFullPayload[] =
    R"({"is_force_":2,"time":"25 min","distance":"12 km","fee":"5","light":"3","label":"fast","mode":0,)"
    R"("better":1,"scene":4,"scene_":1}@90)";

TEST_F(CompanionBubbleTest, EveryKeyFillsItsMember) {
  auto expected = OnlyStyle();
  expected.is_force = true;
  expected.time = "25 min";
  expected.distance = "12 km";
  expected.fee = "5";
  expected.light = "3";
  expected.label = "fast";
  expected.mode_flag = true;
  expected.better = true;
  expected.scene = 4;
  expected.BubbleDrawDescriptor::scene = 1;
  expected.direction = 90;
  expected.style_word = WordOf(3, 3);
  EXPECT_EQ(DecodeCompanion(kFullPayload), expected);
}

TEST_F(CompanionBubbleTest, RoutineRecordPrintsAllMembers) {
  const auto& companion = DecodeCompanion(kFullPayload);
  EXPECT_THAT(records(), ElementsAre(Request(), Routine(kTag, kFunction, Printed(companion))));
  EXPECT_EQ(records()[1].message,
            "[Kavrix][ctx]CompanionBubbleDrawDescriptor{scene:1, content:\"\", lan:\"\", bubble_kind:0, "
            "type:0, direction:90, mode_flag:true, style_name:\"companion_style\", icon:\"\", "
            "style_word:3003, style_scale:[306.500000, 307.500000], selected:false, is_force:true, "
            "time:\"25 min\", label:\"fast\", distance:\"12 km\", fee:\"5\", light:\"3\", better:true, "
            "scene:4}");
}

TEST_F(CompanionBubbleTest, BetterTwoDoesNotSetTheFlag) {
  const auto& companion = DecodeCompanion(R"({"mode":0,"better":2}@90)");
  EXPECT_FALSE(companion.better);
  EXPECT_EQ(companion.style_word, WordOf(3, 2));
}

TEST_F(CompanionBubbleTest, OnlyBetterOneSetsTheFlag) {
  EXPECT_TRUE(DecodeCompanion(R"({"better":1}@0)").better);
  EXPECT_FALSE(DecodeCompanion(R"({"better":0}@0)").better);
  EXPECT_FALSE(DecodeCompanion(R"({"better":-1}@0)").better);
  EXPECT_FALSE(DecodeCompanion(R"({"better":true}@0)").better);
}

TEST_F(CompanionBubbleTest, ModeAndBetterTogetherSelectTheStyleWord) {
  EXPECT_EQ(DecodeCompanion(R"({"mode":0,"better":1}@0)").style_word, WordOf(3, 3));
  EXPECT_EQ(DecodeCompanion(R"({"mode":0,"better":0}@0)").style_word, WordOf(3, 2));
  EXPECT_EQ(DecodeCompanion(R"({"mode":1,"better":1}@0)").style_word, WordOf(3, 5));
  EXPECT_EQ(DecodeCompanion(R"({"mode":1,"better":0}@0)").style_word, WordOf(3, 4));
}

TEST_F(CompanionBubbleTest, TheTwoScalesAreTwoValues) {
  EXPECT_THAT(DecodeCompanion("{}@0").style_scale, ElementsAre(306.5F, 307.5F));
}

TEST_F(CompanionBubbleTest, ForceCountsWhenNotZero) {
  for (const std::string value : {"1", "2", "-1"}) {
    EXPECT_TRUE(DecodeCompanion(R"({"is_force_":)" + value + "}@0").is_force) << value;
  }
  EXPECT_FALSE(DecodeCompanion(R"({"is_force_":0}@0)").is_force);
}

TEST_F(CompanionBubbleTest, AbsentOrMistypedForceKeepsTheFlagClear) {
  EXPECT_FALSE(DecodeCompanion("{}@0").is_force);
  EXPECT_FALSE(DecodeCompanion(R"({"is_force_":"1"}@0)").is_force);
  EXPECT_FALSE(DecodeCompanion(R"({"is_force_":true}@0)").is_force);
  EXPECT_FALSE(DecodeCompanion(R"({"is_force":1}@0)").is_force);
}

TEST_F(CompanionBubbleTest, SceneFillsTheOwnMemberAndSceneWithUnderscoreTheBase) {
  const auto& own = DecodeCompanion(R"({"scene":4}@0)");
  EXPECT_EQ(own.scene, 4);
  EXPECT_EQ(Base().scene, 0);
  const auto& base = DecodeCompanion(R"({"scene_":-7}@0)");
  EXPECT_EQ(base.scene, 0);
  EXPECT_EQ(Base().scene, -7);
}

TEST_F(CompanionBubbleTest, NoSceneSelectsAnotherStyle) {
  for (const std::string scene : {"0", "1", "-1"}) {
    const auto& companion = DecodeCompanion(R"({"scene":)" + scene + R"(,"scene_":)" + scene + "}@0");
    EXPECT_EQ(companion.style_name, "companion_style") << scene;
  }
}

TEST_F(CompanionBubbleTest, AbsentOrMistypedModeInvertsTheFlag) {
  EXPECT_TRUE(DecodeCompanion("{}@0").mode_flag);
  EXPECT_TRUE(DecodeCompanion(R"({"mode":"1"}@0)").mode_flag);
  EXPECT_TRUE(DecodeCompanion(R"({"mode":1.0}@0)").mode_flag);
  EXPECT_FALSE(DecodeCompanion(R"({"mode":1}@0)").mode_flag);
  EXPECT_FALSE(DecodeCompanion(R"({"mode":-1}@0)").mode_flag);
}

TEST_F(CompanionBubbleTest, KeysOfAnotherTypeKeepTheDefaults) {
  auto expected = OnlyStyle();
  expected.mode_flag = true;
  expected.style_word = WordOf(3, 2);
  EXPECT_EQ(DecodeCompanion(R"({"is_force_":[],"time":25,"distance":12.5,"fee":null,"light":{},"label":true,)"
                            R"("mode":{},"better":"1","scene":"4","scene_":4.0}@0)"),
            expected);
}

TEST_F(CompanionBubbleTest, IntegersBeyond32BitsKeepTheDefaults) {
  const auto& companion = DecodeCompanion(R"({"scene":2147483648,"scene_":-2147483649}@0)");
  EXPECT_EQ(companion.scene, 0);
  EXPECT_EQ(Base().scene, 0);
}

TEST_F(CompanionBubbleTest, ContentLanAndSelectionAreNotRead) {
  const auto& companion = DecodeCompanion(R"({"content":"c","lan":"en","is_selected_":1,"direction":5}@0)");
  EXPECT_EQ(companion.content, "");
  EXPECT_EQ(companion.lan, "");
  EXPECT_FALSE(companion.selected);
  EXPECT_EQ(companion.direction, 0);
}

TEST_F(CompanionBubbleTest, DirectionIsNarrowedTo16Bits) {
  EXPECT_EQ(DecodeCompanion("{}@70000").direction, 4464);
  EXPECT_EQ(DecodeCompanion("{}@-1").direction, -1);
}

TEST_F(CompanionBubbleTest, UnreadableTailLeavesTheDirectionAloneButNotTheKeys) {
  for (const std::string tail : {"", "x", "90x", "9.5", " 90", "2147483648"}) {
    const auto& companion = DecodeCompanion(R"({"label":"fast"}@)" + tail);
    EXPECT_EQ(companion.direction, 0) << tail;
    EXPECT_EQ(companion.label, "fast") << tail;
    EXPECT_THAT(records(), ElementsAre(Request(), Routine(kTag, kFunction, Printed(companion)))) << tail;
  }
}

TEST_F(CompanionBubbleTest, BrokenJsonIsLoggedUnderTheTrafficTagWithTheWholeNameAndTheStyleIsStillSet) {
  for (const std::string json : {"", "{", "[1]", "5", "null", "\"{}\"", R"({"label":"fast",})"}) {
    const auto& companion = DecodeCompanion(json + "@90");
    EXPECT_EQ(companion, OnlyStyle()) << json;  // the direction too is left alone
    EXPECT_THAT(records(),
                ElementsAre(Request(), Failure(kTrafficTag, kFunction, "parse json failed: " + name_),
                            Routine(kTag, kFunction, Printed(companion))));
    EXPECT_EQ(snapshots(), 1);
  }
  DecodeCompanion("{@90");
  EXPECT_EQ(records()[1].message, "[Kavrix][ctx]parse json failed: kavrix://resource/{@90.companionBubble");
}

TEST_F(CompanionBubbleTest, JsonNestedTooDeepIsBrokenJson) {
  const auto& companion = DecodeCompanion(R"({"label":)" + std::string(2000, '[') + "@90");
  EXPECT_EQ(companion, OnlyStyle());
  EXPECT_THAT(records(),
              ElementsAre(Request(), Failure(kTrafficTag, kFunction, "parse json failed: " + name_),
                          Routine(kTag, kFunction, Printed(companion))));
}

TEST_F(CompanionBubbleTest, AnyOtherNumberOfAtSignsSetsOnlyTheStyleAndIsNoFailure) {
  for (const std::string payload : {"", R"({"label":"fast"})", R"({"label":"f@st"}@90)", "{}@9@0", "{"}) {
    const auto& companion = DecodeCompanion(payload);
    EXPECT_EQ(companion, OnlyStyle()) << payload;
    EXPECT_THAT(records(), ElementsAre(Request(), Routine(kTag, kFunction, Printed(companion)))) << payload;
    EXPECT_EQ(snapshots(), 1) << payload;
  }
}

TEST_F(CompanionBubbleTest, OneSnapshotIsTakenForAGoodName) {
  DecodeCompanion(kFullPayload);
  EXPECT_EQ(snapshots(), 1);
}

TEST_F(CompanionBubbleTest, NameShorterThanThePrefixThrowsWithOutAlreadyReplaced) {
  const auto earlier = std::make_shared<BubbleDrawDescriptor>();
  out_ = earlier;
  EXPECT_THROW(DecodeWhole(".companionBubble"), std::out_of_range);
  EXPECT_NE(out_, earlier);
  EXPECT_EQ(Base(), CompanionBubbleDrawDescriptor());
  EXPECT_THAT(records(), ElementsAre(Request()));
  EXPECT_EQ(snapshots(), 0);
}

}  // namespace
}  // namespace kavrix::test
