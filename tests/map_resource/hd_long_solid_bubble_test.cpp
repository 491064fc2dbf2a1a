#include "tests/support/decode_test.h"

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;

constexpr char kTag[] = "KavrixMapLayerMgr_LongSolid";
constexpr char kFunction[] = "ParseHdLongSolidBubbleResourceName";

class HdLongSolidBubbleTest : public DecodeTest {
 protected:
  // `rest` is the fields, "@" and the direction.
  const HDLongSolidBubbleDrawDescriptor& DecodeSolid(const std::string& rest) {
    Decode(rest + ".hdLongSolidBubble");
    return Out<HDLongSolidBubbleDrawDescriptor>();
  }
  // Returns the descriptor with the members that every name sets.
  static HDLongSolidBubbleDrawDescriptor Styled() {
    HDLongSolidBubbleDrawDescriptor styled;
    styled.bubble_kind = 12;
    styled.style_name = "hd_long_solid_style";
    styled.style_word = WordOf(14, 2);
    styled.style_scale = {FloatOf(14, 3), FloatOf(14, 3)};
    return styled;
  }
  // Expects the one record of this kind, which prints only the base members.
  void ExpectOnlyRoutineRecord() {
    EXPECT_THAT(records(), ElementsAre(Request(), Routine(kTag, kFunction, Printed(Base()))));
  }
};

TEST_F(HdLongSolidBubbleTest, TwoFieldsFillContentModeAndDirectionButNotForce) {
  DecodeSolid("solid_0@90");
  HDLongSolidBubbleDrawDescriptor expected = Styled();
  expected.content = "solid";
  expected.mode_flag = true;
  expected.direction = 90;
  EXPECT_EQ(Base(), expected);
}

TEST_F(HdLongSolidBubbleTest, RoutineRecordPrintsOnlyTheBaseMembers) {
  DecodeSolid("solid_0@90");
  ExpectOnlyRoutineRecord();
  EXPECT_EQ(records()[1].message,
            "[Kavrix][ctx]BubbleDrawDescriptor{scene:0, content:\"solid\", lan:\"\", bubble_kind:12, type:0, "
            "direction:90, mode_flag:true, style_name:\"hd_long_solid_style\", icon:\"\", style_word:14002, "
            "style_scale:[1403.500000, 1403.500000], selected:false, is_force:false}");
}

TEST_F(HdLongSolidBubbleTest, OtherModeClearsTheFlagAndAThirdFieldSetsForce) {
  DecodeSolid("solid_1_f@90");
  HDLongSolidBubbleDrawDescriptor expected = Styled();
  expected.content = "solid";
  expected.is_force = true;
  expected.direction = 90;
  EXPECT_EQ(Base(), expected);
}

TEST_F(HdLongSolidBubbleTest, ThirdFieldSetsForceWhateverItHoldsAndLaterOnesAreIgnored) {
  for (const char* const force : {"_", "_0", "_1", "_false", "_f_g_h", "____"}) {
    const auto& solid = DecodeSolid(std::string("solid_0") + force + "@90");
    EXPECT_TRUE(solid.is_force) << force;
    EXPECT_EQ(solid.content, "solid");
    EXPECT_TRUE(solid.mode_flag);
    EXPECT_EQ(solid.scene, 0);
    EXPECT_EQ(solid.direction, 90);
  }
}

TEST_F(HdLongSolidBubbleTest, OnlyOneFieldLeavesTheDirectionAndTheStyle) {
  HDLongSolidBubbleDrawDescriptor expected = Styled();
  expected.direction = 90;
  for (const std::string head : {"solid", ""}) {
    DecodeSolid(head + "@90");
    EXPECT_EQ(Base(), expected) << head;
    ExpectOnlyRoutineRecord();
  }
}

TEST_F(HdLongSolidBubbleTest, NamesWithoutExactlyOneAtHaveOnlyTheirKindCodeAndStyle) {
  for (const std::string rest : {"solid_0@90@1", "solid_0", "", "s@lid_0@90", "@@"}) {
    DecodeSolid(rest);
    EXPECT_EQ(Base(), Styled()) << rest;
    ExpectOnlyRoutineRecord();
  }
}

TEST_F(HdLongSolidBubbleTest, EveryNameTakesOneSnapshot) {
  for (const std::string rest : {"solid_0@90", "", "a@b@c"}) {
    DecodeSolid(rest);
    EXPECT_EQ(snapshots(), 1) << rest;
  }
}

TEST_F(HdLongSolidBubbleTest, ModeThatIsNoIntegerKeepsTheFlagWithoutInvertingIt) {
  for (const char* const mode : {"x", "", " 0", "0x", "99999999999"}) {
    const auto& solid = DecodeSolid(std::string("solid_") + mode + "@90");
    EXPECT_FALSE(solid.mode_flag) << mode;
    EXPECT_EQ(solid.content, "solid");
    EXPECT_EQ(solid.direction, 90);
    ExpectOnlyRoutineRecord();
  }
}

TEST_F(HdLongSolidBubbleTest, ContentIsCopiedAsItIsEvenWhenEmpty) {
  EXPECT_EQ(DecodeSolid("_0@90").content, "");
  EXPECT_TRUE(Base().mode_flag);
  EXPECT_EQ(DecodeSolid(" 长实线.a _0@90").content, " 长实线.a ");
}

TEST_F(HdLongSolidBubbleTest, DirectionIsNarrowedTo16Bits) {
  EXPECT_EQ(DecodeSolid("solid_0@70000").direction, 4464);
  EXPECT_EQ(DecodeSolid("solid_0@-1").direction, -1);
}

TEST_F(HdLongSolidBubbleTest, DirectionThatIsNoNumberIsLeftAloneAndTheFieldsAreRead) {
  for (const char* const direction : {"9.5", "", "x", "90x", " 90", "2147483648"}) {
    const auto& solid = DecodeSolid(std::string("solid_0_f@") + direction);
    EXPECT_EQ(solid.direction, 0) << direction;
    EXPECT_EQ(solid.content, "solid");
    EXPECT_TRUE(solid.mode_flag);
    EXPECT_TRUE(solid.is_force);
    ExpectOnlyRoutineRecord();
  }
}

TEST_F(HdLongSolidBubbleTest, NameShorterThanThePrefixThrowsWithKindCodeAndStyleAlreadySet) {
  EXPECT_THROW(transform_.ParseHdLongSolidBubbleResourceName("kavrix://", out_), std::out_of_range);
  EXPECT_EQ(Base(), Styled());
  EXPECT_EQ(snapshots(), 1);
  EXPECT_TRUE(records().empty());
}

}  // namespace
}  // namespace kavrix::test
