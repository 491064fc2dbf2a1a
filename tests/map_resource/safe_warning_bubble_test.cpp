#include "tests/support/decode_test.h"

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;

constexpr char kTag[] = "KavrixMapLayerMgr_BubbleTraffic";
constexpr char kFunction[] = "ParseSafeWarningResourceName";

class SafeWarningBubbleTest : public DecodeTest {
 protected:
  // `payload` is the JSON text, "@" and the direction.
  const SafeWarningBubbleDrawDescriptor& DecodeWarning(const std::string& payload) {
    Decode(payload + ".SafeWarningBubble");
    return Out<SafeWarningBubbleDrawDescriptor>();
  }
};

TEST_F(SafeWarningBubbleTest, EveryKeyFillsItsMember) {
  const auto& warning = DecodeWarning(
      R"({"scene":3,"content":"前方学校","lan":"zh","type":6,"mode":0,"is_force_":1,"category":5,)"
      R"("distance":200}@90)");
  EXPECT_EQ(warning.scene, 3);
  EXPECT_EQ(warning.content, "前方学校");
  EXPECT_EQ(warning.lan, "zh");
  EXPECT_EQ(warning.type, 6);
  EXPECT_TRUE(warning.mode_flag);
  EXPECT_TRUE(warning.is_force);
  EXPECT_EQ(warning.category, 5);
  EXPECT_EQ(warning.distance, 200);
  EXPECT_EQ(warning.direction, 90);
}

TEST_F(SafeWarningBubbleTest, PrintsAllItsMembers) {
  EXPECT_EQ(Printed(DecodeWarning(R"({"mode":1,"category":5,"distance":200}@90)")),
            "SafeWarningBubbleDrawDescriptor{scene:0, content:\"\", lan:\"\", bubble_kind:0, type:0, "
            "direction:90, mode_flag:false, style_name:\"\", icon:\"\", style_word:0, "
            "style_scale:[0.000000, 0.000000], selected:false, is_force:false, category:5, distance:200}");
}

TEST_F(SafeWarningBubbleTest, KindCodeStaysZeroAndNoStyleIsRead) {
  DecodeWarning(R"({"bubble_kind":9,"style_name":"s","mode":1}@0)");
  EXPECT_EQ(Base(), SafeWarningBubbleDrawDescriptor());
  EXPECT_EQ(snapshots(), 0);
}

TEST_F(SafeWarningBubbleTest, SuccessIsNotLogged) {
  DecodeWarning("{}@90");
  EXPECT_THAT(records(), ElementsAre(Request()));
}

TEST_F(SafeWarningBubbleTest, DirectionAfterTheAtOverwritesThatOfTheObject) {
  EXPECT_EQ(DecodeWarning(R"({"direction":5}@90)").direction, 90);
  EXPECT_EQ(DecodeWarning(R"({"direction":5}@0)").direction, 0);
}

TEST_F(SafeWarningBubbleTest, DirectionThatIsNoNumberKeepsThatOfTheObjectAndPublishes) {
  for (const char* const direction : {"", "x", "90x", " 90", "9.5", "2147483648"}) {
    out_ = nullptr;
    EXPECT_EQ(DecodeWarning(std::string(R"({"direction":5}@)") + direction).direction, 5) << direction;
    EXPECT_THAT(records(), ElementsAre(Request()));
  }
}

TEST_F(SafeWarningBubbleTest, DirectionIsNarrowedTo16Bits) {
  EXPECT_EQ(DecodeWarning("{}@70000").direction, 4464);
  EXPECT_EQ(DecodeWarning("{}@-1").direction, -1);
  EXPECT_EQ(DecodeWarning(R"({"direction":70000}@)").direction, 4464);
}

TEST_F(SafeWarningBubbleTest, PayloadOfOtherThanTwoPiecesIsLoggedAndLeavesOutUntouched) {
  const auto earlier = std::make_shared<BubbleDrawDescriptor>();
  for (const std::string payload : {"", "{}", "{}@90@1", R"({"content":"a@b"}@90)", "@@", "{}90"}) {
    out_ = earlier;
    Decode(payload + ".SafeWarningBubble");
    EXPECT_EQ(out_, earlier) << payload;
    EXPECT_EQ(*earlier, BubbleDrawDescriptor());
    EXPECT_THAT(records(),
                ElementsAre(Request(), Failure(kTag, kFunction, "parse resource_name failed: " + payload)));
    EXPECT_EQ(snapshots(), 0);
  }
}

TEST_F(SafeWarningBubbleTest, PayloadOfOtherThanTwoPiecesLeavesAnEmptyOutEmpty) {
  Decode("{}.SafeWarningBubble");
  EXPECT_EQ(out_, nullptr);
}

TEST_F(SafeWarningBubbleTest, BrokenJsonIsNotLoggedAndTheDirectionIsStillThere) {
  SafeWarningBubbleDrawDescriptor expected;
  expected.direction = 90;
  for (const std::string json : {"", "{", "[1]", "5", "null", "\"{}\"", R"({"scene":3,})"}) {
    const auto earlier = std::make_shared<SafeWarningBubbleDrawDescriptor>();
    out_ = earlier;
    DecodeWarning(json + "@90");
    EXPECT_NE(out_, earlier);
    EXPECT_EQ(Base(), expected) << json;
    EXPECT_THAT(records(), ElementsAre(Request()));
  }
}

TEST_F(SafeWarningBubbleTest, OnlyModeZeroSetsTheFlagAndAnAbsentOrMistypedOneInvertsIt) {
  EXPECT_TRUE(DecodeWarning(R"({"mode":0}@0)").mode_flag);
  EXPECT_FALSE(DecodeWarning(R"({"mode":1}@0)").mode_flag);
  EXPECT_TRUE(DecodeWarning("{}@0").mode_flag);
  EXPECT_TRUE(DecodeWarning(R"({"mode":"1"}@0)").mode_flag);
}

TEST_F(SafeWarningBubbleTest, ForceCountsOnlyWhenOneAndUnderItsKeyWithTheUnderscore) {
  EXPECT_TRUE(DecodeWarning(R"({"is_force_":1}@0)").is_force);
  EXPECT_FALSE(DecodeWarning(R"({"is_force_":2}@0)").is_force);
  EXPECT_FALSE(DecodeWarning(R"({"is_force":1}@0)").is_force);
}

TEST_F(SafeWarningBubbleTest, KeysOfAnotherTypeKeepTheDefaults) {
  DecodeWarning(R"({"scene":"3","content":5,"lan":[],"type":6.0,"direction":null,"mode":1,"is_force_":true,)"
                R"("category":"5","distance":3000000000}@)");
  EXPECT_EQ(Base(), SafeWarningBubbleDrawDescriptor());
}

TEST_F(SafeWarningBubbleTest, BracesInsideTextsBelongToTheText) {
  EXPECT_EQ(DecodeWarning(R"({"content":"}{ a } {"}@1)").content, "}{ a } {");
}

TEST_F(SafeWarningBubbleTest, InitWithJsonTakesABareObjectText) {
  SafeWarningBubbleDrawDescriptor warning;
  EXPECT_FALSE(warning.InitWithJson("broken"));
  EXPECT_EQ(warning, SafeWarningBubbleDrawDescriptor());
  EXPECT_TRUE(warning.InitWithJson(R"({"category":5})"));
  EXPECT_EQ(warning.category, 5);
}

TEST_F(SafeWarningBubbleTest, InitWithJsonReadsFromATextOfTheBubbleItself) {
  SafeWarningBubbleDrawDescriptor warning;
  warning.content = R"({"content":"a text of more than fifteen bytes","category":5})";
  EXPECT_TRUE(warning.InitWithJson(warning.content));
  EXPECT_EQ(warning.content, "a text of more than fifteen bytes");
  EXPECT_EQ(warning.category, 5);
}

TEST_F(SafeWarningBubbleTest, NameWithPrefixButShorterThanTheMarkerIsParsedToItsEnd) {
  transform_.ParseSafeWarningResourceName(MapResourceManager::kavrix_resource_prefix + std::string("{}@90"),
                                          out_);
  EXPECT_EQ(Base().direction, 90);
}

TEST_F(SafeWarningBubbleTest, NameShorterThanThePrefixThrowsWithOutUntouched) {
  const auto earlier = std::make_shared<BubbleDrawDescriptor>();
  out_ = earlier;
  EXPECT_THROW(transform_.ParseSafeWarningResourceName("kavrix://", out_), std::out_of_range);
  EXPECT_EQ(out_, earlier);
  EXPECT_TRUE(records().empty());
}

}  // namespace
}  // namespace kavrix::test
