#include "tests/support/decode_test.h"

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;

constexpr char kTag[] = "KavrixMapLayerMgr_BubbleTraffic";
constexpr char kFunction[] = "ParseForceDotBubbleResourceName";

class ForceDotBubbleTest : public DecodeTest {
 protected:
  const BubbleDrawDescriptor& DecodeForceDot(const std::string& payload) {
    Decode(payload + ".ForceDotBubble");
    return Base();
  }
  static BubbleDrawDescriptor Bare() {
    BubbleDrawDescriptor bare;
    bare.bubble_kind = 27;
    return bare;
  }
  // Returns the descriptor with the members that every readable payload sets.
  static BubbleDrawDescriptor Forced() {
    BubbleDrawDescriptor forced = Bare();
    forced.content = "ForceDot";
    forced.is_force = true;
    return forced;
  }
};

TEST_F(ForceDotBubbleTest, ModeAndTypeFillTheirMembersBesideTheFixedContentAndForce) {
  DecodeForceDot(R"({"mode":0,"type":6})");
  BubbleDrawDescriptor expected = Forced();
  expected.mode_flag = true;
  expected.type = 6;
  EXPECT_EQ(Base(), expected);
}

TEST_F(ForceDotBubbleTest, OtherKeysAreNotRead) {
  DecodeForceDot(R"({"mode":1,"content":"c","is_force_":0,"scene":3,"lan":"zh","direction":2,"name":"n"})");
  EXPECT_EQ(Base(), Forced());
}

TEST_F(ForceDotBubbleTest, GoodPayloadIsLoggedAtTheLevelOfFailures) {
  DecodeForceDot(R"({"type":6})");
  EXPECT_THAT(records(), ElementsAre(Request(), Failure(kTag, kFunction, R"({"type":6})")));
  EXPECT_EQ(records()[1].message, "[Kavrix][ctx]{\"type\":6}");
}

TEST_F(ForceDotBubbleTest, EmptyObjectGivesContentForceAndAnInvertedModeFlag) {
  DecodeForceDot("{}");
  BubbleDrawDescriptor expected = Forced();
  expected.mode_flag = true;
  EXPECT_EQ(Base(), expected);
  EXPECT_THAT(records(), ElementsAre(Request(), Failure(kTag, kFunction, "{}")));
}

TEST_F(ForceDotBubbleTest, TypeIsNarrowedTo16Bits) {
  EXPECT_EQ(DecodeForceDot(R"({"type":70000})").type, 4464);
  EXPECT_EQ(DecodeForceDot(R"({"type":-1})").type, -1);
}

TEST_F(ForceDotBubbleTest, OnlyModeZeroSetsTheFlagAndAMistypedOneInvertsIt) {
  EXPECT_TRUE(DecodeForceDot(R"({"mode":0})").mode_flag);
  EXPECT_FALSE(DecodeForceDot(R"({"mode":1})").mode_flag);
  EXPECT_FALSE(DecodeForceDot(R"({"mode":-1})").mode_flag);
  EXPECT_TRUE(DecodeForceDot(R"({"mode":"1"})").mode_flag);
}

TEST_F(ForceDotBubbleTest, TypeOfAnotherJsonTypeKeepsTheDefault) {
  for (const char* const type : {"\"6\"", "6.0", "null", "[6]", "{}", "true", "3000000000"}) {
    EXPECT_EQ(DecodeForceDot(std::string(R"({"type":)") + type + "}").type, 0) << type;
    EXPECT_EQ(Base().content, "ForceDot");
  }
}

TEST_F(ForceDotBubbleTest, BrokenPayloadIsLoggedAndLeavesOnlyTheKindCode) {
  for (const std::string payload : {"{", "[1]", "5", "null", "\"{}\"", R"({"mode":0,})"}) {
    DecodeForceDot(payload);
    EXPECT_EQ(Base(), Bare()) << payload;
    EXPECT_THAT(records(), ElementsAre(Request(), Failure(kTag, kFunction, "parse json failed: " + payload)));
  }
}

TEST_F(ForceDotBubbleTest, EmptyPayloadIsLoggedWithNothingAfterTheMessage) {
  DecodeWhole("kavrix://resource/.ForceDotBubble");
  EXPECT_EQ(Base(), Bare());
  ASSERT_EQ(records().size(), 2U);
  EXPECT_EQ(records()[1].level, 1);
  EXPECT_EQ(records()[1].message, "[Kavrix][ctx]parse json failed: ");
}

TEST_F(ForceDotBubbleTest, NoSnapshotIsTaken) {
  DecodeForceDot("{}");
  EXPECT_EQ(snapshots(), 0);
  DecodeForceDot("broken");
  EXPECT_EQ(snapshots(), 0);
}

TEST_F(ForceDotBubbleTest, NameWithPrefixButShorterThanTheMarkerIsParsedToItsEnd) {
  transform_.ParseForceDotBubbleResourceName(
      MapResourceManager::kavrix_resource_prefix + std::string(R"({"type":6})"), out_);
  EXPECT_EQ(Base().type, 6);
  EXPECT_EQ(Base().bubble_kind, 27);
}

TEST_F(ForceDotBubbleTest, NameShorterThanThePrefixThrowsWithTheKindCodeAlreadySet) {
  EXPECT_THROW(DecodeWhole(".ForceDotBubble"), std::out_of_range);
  EXPECT_EQ(Base(), Bare());
  EXPECT_THAT(records(), ElementsAre(Request()));
}

}  // namespace
}  // namespace kavrix::test
