#include "tests/support/decode_test.h"

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;

constexpr char kTag[] = "KavrixMapLayerMgr_BubbleTraffic";
constexpr char kFunction[] = "ParseUndergroundParkBubbleResourceName";

class UndergroundParkBubbleTest : public DecodeTest {
 protected:
  const BubbleDrawDescriptor& DecodePark(const std::string& payload) {
    Decode(payload + ".UndergroundParkBubble");
    return Base();
  }
  static BubbleDrawDescriptor Bare() {
    BubbleDrawDescriptor bare;
    bare.bubble_kind = 25;
    return bare;
  }
};

TEST_F(UndergroundParkBubbleTest, EveryKeyFillsItsMemberAndNameFillsTheContent) {
  DecodePark(R"({"lan":"zh","mode":0,"direction":2,"name":"地下停车场"})");
  BubbleDrawDescriptor expected = Bare();
  expected.lan = "zh";
  expected.mode_flag = true;
  expected.direction = 2;
  expected.content = "地下停车场";
  EXPECT_EQ(Base(), expected);
}

TEST_F(UndergroundParkBubbleTest, OtherKeysAreNotRead) {
  DecodePark(R"({"mode":1,"content":"c","scene":3,"type":4,"is_force_":1,"is_selected_":1,"icon":"i"})");
  EXPECT_EQ(Base(), Bare());
}

TEST_F(UndergroundParkBubbleTest, GoodPayloadIsLoggedAtTheLevelOfFailures) {
  DecodePark(R"({"name":"P1"})");
  EXPECT_THAT(records(), ElementsAre(Request(), Failure(kTag, kFunction, R"({"name":"P1"})")));
  EXPECT_EQ(records()[1].message, "[Kavrix][ctx]{\"name\":\"P1\"}");
}

TEST_F(UndergroundParkBubbleTest, EmptyObjectGivesTheKindCodeAndAnInvertedModeFlag) {
  DecodePark("{}");
  BubbleDrawDescriptor expected = Bare();
  expected.mode_flag = true;
  EXPECT_EQ(Base(), expected);
  EXPECT_THAT(records(), ElementsAre(Request(), Failure(kTag, kFunction, "{}")));
}

TEST_F(UndergroundParkBubbleTest, ContentKeepsEveryByteOfTheName) {
  EXPECT_EQ(DecodePark("{\"name\":\"\xE5\x9C\xB0\xE4\xB8\x8B\xFF A\"}").content,
            "\xE5\x9C\xB0\xE4\xB8\x8B\xFF A");
}

TEST_F(UndergroundParkBubbleTest, OnlyModeZeroSetsTheFlagAndAMistypedOneInvertsIt) {
  EXPECT_TRUE(DecodePark(R"({"mode":0})").mode_flag);
  EXPECT_FALSE(DecodePark(R"({"mode":1})").mode_flag);
  EXPECT_FALSE(DecodePark(R"({"mode":-1})").mode_flag);
  EXPECT_TRUE(DecodePark(R"({"mode":"1"})").mode_flag);
}

TEST_F(UndergroundParkBubbleTest, DirectionIsNarrowedTo16Bits) {
  EXPECT_EQ(DecodePark(R"({"direction":70000})").direction, 4464);
  EXPECT_EQ(DecodePark(R"({"direction":-1})").direction, -1);
}

TEST_F(UndergroundParkBubbleTest, KeysOfAnotherTypeKeepTheDefaults) {
  DecodePark(R"({"lan":5,"mode":1,"direction":"2","name":null})");
  EXPECT_EQ(Base(), Bare());
}

TEST_F(UndergroundParkBubbleTest, BrokenPayloadIsLoggedAndLeavesOnlyTheKindCode) {
  for (const std::string payload : {"\"{}\"", "", "{", "[1]", "5", "null", R"({"mode":0,})"}) {
    DecodePark(payload);
    EXPECT_EQ(Base(), Bare()) << payload;
    EXPECT_THAT(records(), ElementsAre(Request(), Failure(kTag, kFunction, "parse json failed: " + payload)));
  }
}

TEST_F(UndergroundParkBubbleTest, NoSnapshotIsTaken) {
  DecodePark("{}");
  EXPECT_EQ(snapshots(), 0);
  DecodePark("broken");
  EXPECT_EQ(snapshots(), 0);
}

TEST_F(UndergroundParkBubbleTest, NameWithPrefixButShorterThanTheMarkerIsParsedToItsEnd) {
  transform_.ParseUndergroundParkBubbleResourceName(
      MapResourceManager::kavrix_resource_prefix + std::string(R"({"name":"P1"})"), out_);
  EXPECT_EQ(Base().content, "P1");
}

TEST_F(UndergroundParkBubbleTest, NameShorterThanThePrefixThrowsWithTheKindCodeAlreadySet) {
  EXPECT_THROW(transform_.ParseUndergroundParkBubbleResourceName("kavrix://", out_), std::out_of_range);
  EXPECT_EQ(Base(), Bare());
  EXPECT_TRUE(records().empty());
}

}  // namespace
}  // namespace kavrix::test
