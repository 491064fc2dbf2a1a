#include "tests/support/decode_test.h"

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;

class YawNoticeBubbleTest : public DecodeTest {
 protected:
  const YawNoticeBubbleDrawDescriptor& DecodeOne(const std::string& payload) {
    Decode(payload + ".YawNoticeBubble");
    return Out<YawNoticeBubbleDrawDescriptor>();
  }
};

TEST_F(YawNoticeBubbleTest, EveryKeyFillsItsMember) {
  const auto& bubble =
      DecodeOne(R"({"scene":3,"content":"文字","lan":"zh","type":6,"direction":2,"mode":0,"is_force_":1,)"
                R"("reason":4})");
  EXPECT_EQ(bubble.scene, 3);
  EXPECT_EQ(bubble.content, "文字");
  EXPECT_EQ(bubble.lan, "zh");
  EXPECT_EQ(bubble.type, 6);
  EXPECT_EQ(bubble.direction, 2);
  EXPECT_TRUE(bubble.mode_flag);
  EXPECT_TRUE(bubble.is_force);
  EXPECT_EQ(bubble.reason, 4);
}

TEST_F(YawNoticeBubbleTest, PrintsAllItsMembers) {
  EXPECT_EQ(
      Printed(DecodeOne(R"({"mode":1,"reason":4})")),
      "YawNoticeBubbleDrawDescriptor{scene:0, content:\"\", lan:\"\", bubble_kind:0, type:0, direction:0, "
      "mode_flag:false, style_name:\"\", icon:\"\", style_word:0, style_scale:[0.000000, 0.000000], "
      "selected:false, is_force:false, reason:4}");
}

TEST_F(YawNoticeBubbleTest, KindCodeStaysZeroAndNoStyleIsRead) {
  DecodeOne(R"({"bubble_kind":9,"style_name":"s","mode":1})");
  EXPECT_EQ(Base(), YawNoticeBubbleDrawDescriptor());
  EXPECT_EQ(snapshots(), 0);
}

TEST_F(YawNoticeBubbleTest, NothingIsLoggedBesideTheRequest) {
  DecodeOne("{}");
  EXPECT_THAT(records(), ElementsAre(Request()));
  DecodeOne("broken");
  EXPECT_THAT(records(), ElementsAre(Request()));
}

TEST_F(YawNoticeBubbleTest, NameWithoutAReadableObjectGivesANewDescriptorAsConstructed) {
  for (const std::string payload : {"", "broken", "{", "}", "}{", "[1]", "5", "null", R"({"scene":3,})"}) {
    const auto earlier = std::make_shared<YawNoticeBubbleDrawDescriptor>();
    out_ = earlier;
    DecodeOne(payload);
    EXPECT_NE(out_, earlier);
    EXPECT_EQ(Base(), YawNoticeBubbleDrawDescriptor()) << payload;
    EXPECT_THAT(records(), ElementsAre(Request()));
  }
}

TEST_F(YawNoticeBubbleTest, ModeZeroAloneSetsTheFlagAndAnAbsentOrMistypedOneInvertsIt) {
  EXPECT_TRUE(DecodeOne(R"({"mode":0})").mode_flag);
  EXPECT_FALSE(DecodeOne(R"({"mode":1})").mode_flag);
  EXPECT_FALSE(DecodeOne(R"({"mode":-1})").mode_flag);
  EXPECT_TRUE(DecodeOne("{}").mode_flag);
  EXPECT_TRUE(DecodeOne(R"({"mode":"1"})").mode_flag);
}

TEST_F(YawNoticeBubbleTest, ForceCountsOnlyWhenOneAndUnderItsKeyWithTheUnderscore) {
  EXPECT_TRUE(DecodeOne(R"({"is_force_":1})").is_force);
  EXPECT_FALSE(DecodeOne(R"({"is_force_":2})").is_force);
  EXPECT_FALSE(DecodeOne(R"({"is_force":1})").is_force);
}

TEST_F(YawNoticeBubbleTest, TypeAndDirectionAreNarrowedTo16Bits) {
  const auto& bubble = DecodeOne(R"({"type":70000,"direction":-1})");
  EXPECT_EQ(bubble.type, 4464);
  EXPECT_EQ(bubble.direction, -1);
}

TEST_F(YawNoticeBubbleTest, KeysOfAnotherTypeKeepTheDefaults) {
  DecodeOne(R"({"scene":"3","content":5,"lan":[],"type":6.0,"direction":null,"mode":1,"is_force_":true,)"
            R"("reason":"4"})");
  EXPECT_EQ(Base(), YawNoticeBubbleDrawDescriptor());
}

TEST_F(YawNoticeBubbleTest, BracesInsideTextsBelongToTheText) {
  EXPECT_EQ(DecodeOne(R"({"content":"}{ a } {"})").content, "}{ a } {");
}

TEST_F(YawNoticeBubbleTest, NameWithoutThePrefixIsReadAsWell) {
  DecodeWhole(R"({"scene":3}.YawNoticeBubble)");
  EXPECT_EQ(Base().scene, 3);
}

TEST_F(YawNoticeBubbleTest, TextAroundTheObjectIsPassedOver) {
  EXPECT_EQ(DecodeOne(R"(12@{"scene":3}@7)").scene, 3);
}

TEST_F(YawNoticeBubbleTest, NameShorterThanThePrefixDoesNotThrow) {
  transform_.ParseResourceName<YawNoticeBubbleDrawDescriptor>("{}", out_);
  EXPECT_TRUE(Out<YawNoticeBubbleDrawDescriptor>().mode_flag);
  transform_.ParseResourceName<YawNoticeBubbleDrawDescriptor>("", out_);
  EXPECT_EQ(Base(), YawNoticeBubbleDrawDescriptor());
}

TEST_F(YawNoticeBubbleTest, InitWithJsonTellsWhetherItFoundAnObject) {
  YawNoticeBubbleDrawDescriptor bubble;
  EXPECT_FALSE(bubble.InitWithJson("kavrix://resource/broken.YawNoticeBubble"));
  EXPECT_EQ(bubble, YawNoticeBubbleDrawDescriptor());
  EXPECT_TRUE(bubble.InitWithJson("kavrix://resource/{\"scene\":3}.YawNoticeBubble"));
  EXPECT_EQ(bubble.scene, 3);
}

}  // namespace
}  // namespace kavrix::test
