#include "tests/support/decode_test.h"

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;

constexpr char kTag[] = "KavrixMapLayerMgr_BubbleTraffic";
constexpr char kFunction[] = "ParseForcePollBubbleResourceName";

class ForcePollBubbleTest : public DecodeTest {
 protected:
  const BubbleDrawDescriptor& DecodeForcePoll(const std::string& payload) {
    Decode(payload + ".ForcePollBubble");
    return Base();
  }
  static BubbleDrawDescriptor Bare() {
    BubbleDrawDescriptor bare;
    bare.bubble_kind = 28;
    return bare;
  }
  // Returns the descriptor with the members that every readable payload sets.
  static BubbleDrawDescriptor Forced() {
    BubbleDrawDescriptor forced = Bare();
    forced.content = "ForcePoll";
    forced.is_force = true;
    return forced;
  }
};

TEST_F(ForcePollBubbleTest, ModeAndTypeFillTheirMembersBesideTheFixedContentAndForce) {
  DecodeForcePoll(R"({"mode":0,"type":6})");
  BubbleDrawDescriptor expected = Forced();
  expected.mode_flag = true;
  expected.type = 6;
  EXPECT_EQ(Base(), expected);
}

TEST_F(ForcePollBubbleTest, OtherKeysAreNotRead) {
  DecodeForcePoll(R"({"mode":1,"content":"c","is_force_":0,"scene":3,"lan":"zh","direction":2,"name":"n"})");
  EXPECT_EQ(Base(), Forced());
}

TEST_F(ForcePollBubbleTest, GoodPayloadIsLoggedAtTheLevelOfFailures) {
  DecodeForcePoll(R"({"type":6})");
  EXPECT_THAT(records(), ElementsAre(Request(), Failure(kTag, kFunction, R"({"type":6})")));
  EXPECT_EQ(records()[1].message, "[Kavrix][ctx]{\"type\":6}");
}

TEST_F(ForcePollBubbleTest, EmptyObjectGivesContentForceAndAnInvertedModeFlag) {
  DecodeForcePoll("{}");
  BubbleDrawDescriptor expected = Forced();
  expected.mode_flag = true;
  EXPECT_EQ(Base(), expected);
  EXPECT_THAT(records(), ElementsAre(Request(), Failure(kTag, kFunction, "{}")));
}

TEST_F(ForcePollBubbleTest, TypeIsNarrowedTo16Bits) {
  EXPECT_EQ(DecodeForcePoll(R"({"type":70000})").type, 4464);
  EXPECT_EQ(DecodeForcePoll(R"({"type":-1})").type, -1);
}

TEST_F(ForcePollBubbleTest, OnlyModeZeroSetsTheFlagAndAMistypedOneInvertsIt) {
  EXPECT_TRUE(DecodeForcePoll(R"({"mode":0})").mode_flag);
  EXPECT_FALSE(DecodeForcePoll(R"({"mode":1})").mode_flag);
  EXPECT_FALSE(DecodeForcePoll(R"({"mode":-1})").mode_flag);
  EXPECT_TRUE(DecodeForcePoll(R"({"mode":"1"})").mode_flag);
}

TEST_F(ForcePollBubbleTest, TypeOfAnotherJsonTypeKeepsTheDefault) {
  for (const char* const type : {"\"6\"", "6.0", "null", "[6]", "{}", "true", "3000000000"}) {
    EXPECT_EQ(DecodeForcePoll(std::string(R"({"type":)") + type + "}").type, 0) << type;
    EXPECT_EQ(Base().content, "ForcePoll");
  }
}

TEST_F(ForcePollBubbleTest, BrokenPayloadIsLoggedAndLeavesOnlyTheKindCode) {
  for (const std::string payload : {"{", "[1]", "5", "null", "\"{}\"", R"({"mode":0,})"}) {
    DecodeForcePoll(payload);
    EXPECT_EQ(Base(), Bare()) << payload;
    EXPECT_THAT(records(), ElementsAre(Request(), Failure(kTag, kFunction, "parse json failed: " + payload)));
  }
}

TEST_F(ForcePollBubbleTest, EmptyPayloadIsLoggedWithNothingAfterTheMessage) {
  DecodeWhole("kavrix://resource/.ForcePollBubble");
  EXPECT_EQ(Base(), Bare());
  ASSERT_EQ(records().size(), 2U);
  EXPECT_EQ(records()[1].level, 1);
  EXPECT_EQ(records()[1].message, "[Kavrix][ctx]parse json failed: ");
}

TEST_F(ForcePollBubbleTest, NoSnapshotIsTaken) {
  DecodeForcePoll("{}");
  EXPECT_EQ(snapshots(), 0);
  DecodeForcePoll("broken");
  EXPECT_EQ(snapshots(), 0);
}

TEST_F(ForcePollBubbleTest, NameWithPrefixButShorterThanTheMarkerIsParsedToItsEnd) {
  transform_.ParseForcePollBubbleResourceName(
      MapResourceManager::kavrix_resource_prefix + std::string(R"({"type":6})"), out_);
  EXPECT_EQ(Base().type, 6);
  EXPECT_EQ(Base().bubble_kind, 28);
}

TEST_F(ForcePollBubbleTest, NameShorterThanThePrefixThrowsWithTheKindCodeAlreadySet) {
  EXPECT_THROW(DecodeWhole(".ForcePollBubble"), std::out_of_range);
  EXPECT_EQ(Base(), Bare());
  EXPECT_THAT(records(), ElementsAre(Request()));
}

}  // namespace
}  // namespace kavrix::test
