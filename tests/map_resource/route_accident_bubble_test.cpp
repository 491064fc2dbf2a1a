#include "tests/support/decode_test.h"

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;

class RouteAccidentBubbleTest : public DecodeTest {
 protected:
  const RouteAccidentBubbleDrawDescriptor& DecodeOne(const std::string& payload) {
    Decode(payload + ".RouteAccidentBubble");
    return Out<RouteAccidentBubbleDrawDescriptor>();
  }
};

TEST_F(RouteAccidentBubbleTest, EveryKeyFillsItsMember) {
  const auto& bubble =
      DecodeOne(R"({"scene":3,"content":"文字","lan":"zh","type":6,"direction":2,"mode":0,"is_force_":1,)"
                R"("accident_id":"E7","severity":2})");
  EXPECT_EQ(bubble.scene, 3);
  EXPECT_EQ(bubble.content, "文字");
  EXPECT_EQ(bubble.lan, "zh");
  EXPECT_EQ(bubble.type, 6);
  EXPECT_EQ(bubble.direction, 2);
  EXPECT_TRUE(bubble.mode_flag);
  EXPECT_TRUE(bubble.is_force);
  EXPECT_EQ(bubble.accident_id, "E7");
  EXPECT_EQ(bubble.severity, 2);
}

TEST_F(RouteAccidentBubbleTest, PrintsAllItsMembers) {
  EXPECT_EQ(Printed(DecodeOne(R"({"mode":1,"accident_id":"E7","severity":2})")),
            "RouteAccidentBubbleDrawDescriptor{scene:0, content:\"\", lan:\"\", bubble_kind:0, type:0, "
            "direction:0, "
            "mode_flag:false, style_name:\"\", icon:\"\", style_word:0, style_scale:[0.000000, 0.000000], "
            "selected:false, is_force:false, accident_id:\"E7\", severity:2}");
}

TEST_F(RouteAccidentBubbleTest, KindCodeStaysZeroAndNoStyleIsRead) {
  DecodeOne(R"({"bubble_kind":9,"style_name":"s","mode":1})");
  EXPECT_EQ(Base(), RouteAccidentBubbleDrawDescriptor());
  EXPECT_EQ(snapshots(), 0);
}

TEST_F(RouteAccidentBubbleTest, NothingIsLoggedBesideTheRequest) {
  DecodeOne("{}");
  EXPECT_THAT(records(), ElementsAre(Request()));
  DecodeOne("broken");
  EXPECT_THAT(records(), ElementsAre(Request()));
}

TEST_F(RouteAccidentBubbleTest, NameWithoutAReadableObjectGivesANewDescriptorAsConstructed) {
  for (const std::string payload : {"", "broken", "{", "}", "}{", "[1]", "5", "null", R"({"scene":3,})"}) {
    const auto earlier = std::make_shared<RouteAccidentBubbleDrawDescriptor>();
    out_ = earlier;
    DecodeOne(payload);
    EXPECT_NE(out_, earlier);
    EXPECT_EQ(Base(), RouteAccidentBubbleDrawDescriptor()) << payload;
    EXPECT_THAT(records(), ElementsAre(Request()));
  }
}

TEST_F(RouteAccidentBubbleTest, ModeZeroAloneSetsTheFlagAndAnAbsentOrMistypedOneInvertsIt) {
  EXPECT_TRUE(DecodeOne(R"({"mode":0})").mode_flag);
  EXPECT_FALSE(DecodeOne(R"({"mode":1})").mode_flag);
  EXPECT_FALSE(DecodeOne(R"({"mode":-1})").mode_flag);
  EXPECT_TRUE(DecodeOne("{}").mode_flag);
  EXPECT_TRUE(DecodeOne(R"({"mode":"1"})").mode_flag);
}

TEST_F(RouteAccidentBubbleTest, ForceCountsOnlyWhenOneAndUnderItsKeyWithTheUnderscore) {
  EXPECT_TRUE(DecodeOne(R"({"is_force_":1})").is_force);
  EXPECT_FALSE(DecodeOne(R"({"is_force_":2})").is_force);
  EXPECT_FALSE(DecodeOne(R"({"is_force":1})").is_force);
}

TEST_F(RouteAccidentBubbleTest, TypeAndDirectionAreNarrowedTo16Bits) {
  const auto& bubble = DecodeOne(R"({"type":70000,"direction":-1})");
  EXPECT_EQ(bubble.type, 4464);
  EXPECT_EQ(bubble.direction, -1);
}

TEST_F(RouteAccidentBubbleTest, KeysOfAnotherTypeKeepTheDefaults) {
  DecodeOne(R"({"scene":"3","content":5,"lan":[],"type":6.0,"direction":null,"mode":1,"is_force_":true,)"
            R"("accident_id":7,"severity":2.0})");
  EXPECT_EQ(Base(), RouteAccidentBubbleDrawDescriptor());
}

TEST_F(RouteAccidentBubbleTest, BracesInsideTextsBelongToTheText) {
  EXPECT_EQ(DecodeOne(R"({"content":"}{ a } {"})").content, "}{ a } {");
}

TEST_F(RouteAccidentBubbleTest, NameWithoutThePrefixIsReadAsWell) {
  DecodeWhole(R"({"scene":3}.RouteAccidentBubble)");
  EXPECT_EQ(Base().scene, 3);
}

TEST_F(RouteAccidentBubbleTest, TextAroundTheObjectIsPassedOver) {
  EXPECT_EQ(DecodeOne(R"(12@{"scene":3}@7)").scene, 3);
}

TEST_F(RouteAccidentBubbleTest, NameShorterThanThePrefixDoesNotThrow) {
  MapResourceTransform::ParseRouteAccidentResourceName("{}", out_);
  EXPECT_TRUE(Out<RouteAccidentBubbleDrawDescriptor>().mode_flag);
  MapResourceTransform::ParseRouteAccidentResourceName("", out_);
  EXPECT_EQ(Base(), RouteAccidentBubbleDrawDescriptor());
}

TEST_F(RouteAccidentBubbleTest, InitWithJsonTellsWhetherItFoundAnObject) {
  RouteAccidentBubbleDrawDescriptor bubble;
  EXPECT_FALSE(bubble.InitWithJson("kavrix://resource/broken.RouteAccidentBubble"));
  EXPECT_EQ(bubble, RouteAccidentBubbleDrawDescriptor());
  EXPECT_TRUE(bubble.InitWithJson("kavrix://resource/{\"scene\":3}.RouteAccidentBubble"));
  EXPECT_EQ(bubble.scene, 3);
}

}  // namespace
}  // namespace kavrix::test
