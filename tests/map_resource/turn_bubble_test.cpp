#include "tests/support/decode_test.h"

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;

constexpr char kTag[] = "KavrixMapLayerMgr_TurnArrow";
constexpr char kFunction[] = "ParseTurnBubbleResourceName";

class TurnBubbleTest : public DecodeTest {
 protected:
  const TurnArrowBubbleDrawDescriptor& DecodeTurn(const std::string& payload) {
    Decode(payload + ".turnBubble");
    return Out<TurnArrowBubbleDrawDescriptor>();
  }
  // Returns the descriptor with the members that every name sets.
  static TurnArrowBubbleDrawDescriptor Named() {
    TurnArrowBubbleDrawDescriptor named;
    named.bubble_kind = 10;
    named.style_name = "turn_style";
    return named;
  }
  SeenRecord OwnRequest() const { return Routine(kTag, kFunction, " resource_name:" + name_); }
};

TEST_F(TurnBubbleTest, EveryKeyFillsItsMember) {
  const auto& turn =
      DecodeTurn(R"({"is_force_":1,"type":6,"direction":2,"mode":0,"scene":3,"lan":"zh","distance":350})");
  EXPECT_TRUE(turn.is_force);
  EXPECT_EQ(turn.type, 6);
  EXPECT_EQ(turn.direction, 2);
  EXPECT_TRUE(turn.mode_flag);
  EXPECT_EQ(turn.scene, 3);
  EXPECT_EQ(turn.lan, "zh");
  EXPECT_EQ(turn.distance, 350);
  EXPECT_EQ(turn.bubble_kind, 10);
  EXPECT_EQ(turn.content, "");
  EXPECT_FALSE(turn.selected);
}

TEST_F(TurnBubbleTest, TheOneRecordIsTheRequestWithABlankBeforeResourceName) {
  DecodeTurn(R"({"distance":350})");
  EXPECT_THAT(records(), ElementsAre(Request(), OwnRequest()));
  EXPECT_EQ(records()[1].message,
            "[Kavrix][ctx] resource_name:kavrix://resource/{\"distance\":350}.turnBubble");
}

TEST_F(TurnBubbleTest, OnlyTheNameOfTheStyleIsTaken) {
  const auto& turn = DecodeTurn("{}");
  EXPECT_EQ(turn.style_name, "turn_style");
  EXPECT_EQ(turn.style_word, 0U);
  EXPECT_EQ(turn.style_scale[0], 0);
  EXPECT_EQ(turn.style_scale[1], 0);
}

TEST_F(TurnBubbleTest, EmptyObjectGivesKindCodeStyleNameAndAnInvertedModeFlag) {
  DecodeTurn("{}");
  TurnArrowBubbleDrawDescriptor expected = Named();
  expected.mode_flag = true;
  EXPECT_EQ(Base(), expected);
}

TEST_F(TurnBubbleTest, BrokenPayloadIsNotLoggedAndLeavesANewDescriptorWithItsStyleName) {
  for (const std::string payload : {"", "{", "[1]", "5", "null", "\"{}\"", R"({"type":6,})"}) {
    const auto earlier = std::make_shared<TurnArrowBubbleDrawDescriptor>();
    out_ = earlier;
    DecodeTurn(payload);
    EXPECT_NE(out_, earlier);
    EXPECT_EQ(Base(), Named()) << payload;
    EXPECT_THAT(records(), ElementsAre(Request(), OwnRequest()));
  }
}

TEST_F(TurnBubbleTest, OneSnapshotIsTakenWhetherOrNotThePayloadParses) {
  DecodeTurn("{}");
  EXPECT_EQ(snapshots(), 1);
  DecodeTurn("broken");
  EXPECT_EQ(snapshots(), 1);
}

TEST_F(TurnBubbleTest, TypeAndDirectionAreNarrowedTo16Bits) {
  const auto& turn = DecodeTurn(R"({"type":70000,"direction":-1})");
  EXPECT_EQ(turn.type, 4464);
  EXPECT_EQ(turn.direction, -1);
  EXPECT_EQ(DecodeTurn(R"({"direction":40000})").direction, -25536);
}

TEST_F(TurnBubbleTest, DistanceKeepsAll32Bits) {
  EXPECT_EQ(DecodeTurn(R"({"distance":70000})").distance, 70000);
  EXPECT_EQ(DecodeTurn(R"({"distance":-5})").distance, -5);
}

TEST_F(TurnBubbleTest, ForceCountsOnlyWhenOneAndUnderItsKeyWithTheUnderscore) {
  EXPECT_TRUE(DecodeTurn(R"({"is_force_":1})").is_force);
  EXPECT_FALSE(DecodeTurn(R"({"is_force_":2})").is_force);
  EXPECT_FALSE(DecodeTurn(R"({"is_force_":-1})").is_force);
  EXPECT_FALSE(DecodeTurn(R"({"is_force_":true})").is_force);
  EXPECT_FALSE(DecodeTurn(R"({"is_force":1})").is_force);
}

TEST_F(TurnBubbleTest, OnlyModeZeroSetsTheFlagAndAMistypedOneInvertsIt) {
  EXPECT_TRUE(DecodeTurn(R"({"mode":0})").mode_flag);
  EXPECT_FALSE(DecodeTurn(R"({"mode":1})").mode_flag);
  EXPECT_FALSE(DecodeTurn(R"({"mode":-1})").mode_flag);
  EXPECT_TRUE(DecodeTurn(R"({"mode":"1"})").mode_flag);
  EXPECT_TRUE(DecodeTurn(R"({"mode":null})").mode_flag);
}

TEST_F(TurnBubbleTest, KeysOfAnotherTypeKeepTheDefaults) {
  DecodeTurn(
      R"({"is_force_":"1","type":6.0,"direction":[],"mode":1,"scene":"3","lan":7,"distance":3000000000})");
  EXPECT_EQ(Base(), Named());
}

TEST_F(TurnBubbleTest, NameWithPrefixButShorterThanTheMarkerIsParsedToItsEnd) {
  transform_.ParseTurnBubbleResourceName(
      MapResourceManager::kavrix_resource_prefix + std::string(R"({"type":4})"), out_);
  EXPECT_EQ(Base().type, 4);
}

TEST_F(TurnBubbleTest, NameShorterThanThePrefixThrowsBeforeKindCodeAndStyleButAfterTheRecord) {
  EXPECT_THROW(DecodeWhole(".turnBubble"), std::out_of_range);
  EXPECT_EQ(Base(), TurnArrowBubbleDrawDescriptor());
  EXPECT_EQ(snapshots(), 0);
  EXPECT_THAT(records(), ElementsAre(Request(), OwnRequest()));
}

}  // namespace
}  // namespace kavrix::test
