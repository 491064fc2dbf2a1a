#include "tests/support/decode_test.h"

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;

constexpr char kTag[] = "MapLayerMgr_LightWait";
constexpr char kFunction[] = "ParseLightWaitBubbleResourceName";

class LightWaitBubbleTest : public DecodeTest {
 protected:
  // `rest` is the four fields, "@" and the direction.
  const LightWaitBubbleDrawDescriptor& DecodeWait(const std::string& rest) {
    Decode(rest + ".lightWaitBubble");
    return Out<LightWaitBubbleDrawDescriptor>();
  }
  // Returns the descriptor with the members that every name sets.
  static LightWaitBubbleDrawDescriptor Styled() {
    LightWaitBubbleDrawDescriptor styled;
    styled.bubble_kind = 14;
    styled.style_name = "light_wait_style";
    styled.style_word = WordOf(17, 2);
    styled.style_scale = {FloatOf(17, 3), FloatOf(17, 3)};
    return styled;
  }
  // Expects the one record of this kind, which prints only the base members.
  void ExpectOnlyRoutineRecord() {
    EXPECT_THAT(records(), ElementsAre(Request(), Routine(kTag, kFunction, Printed(Base()))));
  }
};

TEST_F(LightWaitBubbleTest, EveryFieldFillsItsMember) {
  DecodeWait("poi_0_1_1@3");
  LightWaitBubbleDrawDescriptor expected = Styled();
  expected.content = "poi";
  expected.mode_flag = true;
  expected.scene = 1;
  expected.is_force = true;
  expected.direction = 3;
  EXPECT_EQ(Base(), expected);
}

TEST_F(LightWaitBubbleTest, RoutineRecordUnderTheTagWithoutTheModuleWordPrintsTheBaseMembers) {
  DecodeWait("等灯_0_1_1@3");
  ExpectOnlyRoutineRecord();
  EXPECT_EQ(records()[1].tag, "MapLayerMgr_LightWait");
  EXPECT_EQ(records()[1].message,
            "[Kavrix][ctx]BubbleDrawDescriptor{scene:1, content:\"等灯\", lan:\"\", bubble_kind:14, type:0, "
            "direction:3, mode_flag:true, style_name:\"light_wait_style\", icon:\"\", style_word:17002, "
            "style_scale:[1703.500000, 1703.500000], selected:false, is_force:true}");
}

TEST_F(LightWaitBubbleTest, OtherForceTextAndModeClearBothFlags) {
  DecodeWait("poi_1_1_true@3");
  LightWaitBubbleDrawDescriptor expected = Styled();
  expected.content = "poi";
  expected.scene = 1;
  expected.direction = 3;
  EXPECT_EQ(Base(), expected);
}

TEST_F(LightWaitBubbleTest, ForceIsSetOnlyByTheOneCharacterTextOne) {
  EXPECT_TRUE(DecodeWait("poi_0_1_1@3").is_force);
  for (const char* const force : {"", "0", "01", "1 ", " 1", "+1", "2", "11", "true"}) {
    EXPECT_FALSE(DecodeWait(std::string("poi_0_1_") + force + "@3").is_force) << force;
  }
}

TEST_F(LightWaitBubbleTest, EveryNameTakesOneSnapshotAndTheStyle) {
  for (const std::string rest : {"poi_0_1_1@3", "", "poi", "a@b@c", "_@"}) {
    DecodeWait(rest);
    EXPECT_EQ(Base().style_name, "light_wait_style") << rest;
    EXPECT_EQ(Base().style_word, WordOf(17, 2));
    EXPECT_EQ(Base().style_scale[0], FloatOf(17, 3));
    EXPECT_EQ(Base().style_scale[1], FloatOf(17, 3));
    EXPECT_EQ(snapshots(), 1);
  }
}

TEST_F(LightWaitBubbleTest, NamesWithoutExactlyOneAtHaveOnlyTheirKindCodeAndStyle) {
  for (const std::string rest : {"", "poi_0_1_1", "poi_0_1_1@3@4", "p@i_0_1_1@3", "@@"}) {
    DecodeWait(rest);
    EXPECT_EQ(Base(), Styled()) << rest;
    ExpectOnlyRoutineRecord();
  }
}

TEST_F(LightWaitBubbleTest, OtherThanFourFieldsLeaveTheDirectionAndTheStyle) {
  LightWaitBubbleDrawDescriptor expected = Styled();
  expected.direction = 3;
  for (const std::string head : {"A_B_C", "", "poi", "poi_0_1_1_", "poi_0_1_1_1"}) {
    DecodeWait(head + "@3");
    EXPECT_EQ(Base(), expected) << head;
    ExpectOnlyRoutineRecord();
  }
}

TEST_F(LightWaitBubbleTest, UnderscoreInTheContentBreaksTheFieldCount) {
  DecodeWait("my_poi_0_1_1@3");
  LightWaitBubbleDrawDescriptor expected = Styled();
  expected.direction = 3;
  EXPECT_EQ(Base(), expected);
}

TEST_F(LightWaitBubbleTest, FieldThatIsNoIntegerLeavesItsMemberAloneAndTheOthersAreSet) {
  const auto& no_mode = DecodeWait("poi_x_5_1@3");
  EXPECT_FALSE(no_mode.mode_flag);
  EXPECT_EQ(no_mode.scene, 5);
  EXPECT_TRUE(no_mode.is_force);
  const auto& no_scene = DecodeWait("poi_0_5x_1@3");
  EXPECT_TRUE(no_scene.mode_flag);
  EXPECT_EQ(no_scene.scene, 0);
  EXPECT_EQ(no_scene.content, "poi");
  EXPECT_TRUE(no_scene.is_force);
  DecodeWait("poi___@");
  LightWaitBubbleDrawDescriptor expected = Styled();
  expected.content = "poi";
  EXPECT_EQ(Base(), expected);
}

TEST_F(LightWaitBubbleTest, OnlyModeZeroSetsTheFlag) {
  EXPECT_TRUE(DecodeWait("poi_0_1_1@3").mode_flag);
  EXPECT_TRUE(DecodeWait("poi_-0_1_1@3").mode_flag);
  for (const char* const mode : {"1", "2", "-1", "", " 0", "0.0"}) {
    EXPECT_FALSE(DecodeWait(std::string("poi_") + mode + "_1_1@3").mode_flag) << mode;
  }
}

TEST_F(LightWaitBubbleTest, ContentIsCopiedAsItIsEvenWhenEmpty) {
  EXPECT_EQ(DecodeWait("_0_1_1@3").content, "");
  EXPECT_TRUE(Base().is_force);
  EXPECT_EQ(DecodeWait(" a.b {\"c\"} _0_1_1@3").content, " a.b {\"c\"} ");
}

TEST_F(LightWaitBubbleTest, SceneKeepsAll32Bits) {
  EXPECT_EQ(DecodeWait("poi_0_70000_1@3").scene, 70000);
  EXPECT_EQ(DecodeWait("poi_0_-7_1@3").scene, -7);
}

TEST_F(LightWaitBubbleTest, DirectionIsNarrowedTo16Bits) {
  EXPECT_EQ(DecodeWait("poi_0_1_1@70000").direction, 4464);
  EXPECT_EQ(DecodeWait("poi_0_1_1@-1").direction, -1);
}

TEST_F(LightWaitBubbleTest, DirectionThatIsNoNumberIsLeftAlone) {
  for (const char* const direction : {"", "x", "3x", " 3", "9.5", "2147483648"}) {
    EXPECT_EQ(DecodeWait(std::string("poi_0_1_1@") + direction).direction, 0) << direction;
    EXPECT_EQ(Base().content, "poi");
    ExpectOnlyRoutineRecord();
  }
}

TEST_F(LightWaitBubbleTest, NameShorterThanThePrefixThrowsWithTheKindCodeButBeforeTheStyle) {
  EXPECT_THROW(DecodeWhole(".lightWaitBubble"), std::out_of_range);
  LightWaitBubbleDrawDescriptor expected;
  expected.bubble_kind = 14;
  EXPECT_EQ(Base(), expected);
  EXPECT_EQ(snapshots(), 0);
  EXPECT_THAT(records(), ElementsAre(Request()));
}

}  // namespace
}  // namespace kavrix::test
