#include "tests/support/whole_name_test.h"

namespace kavrix::test {
namespace {

struct YawNotice {
  static constexpr const char* kMarker = ".YawNoticeBubble";
  using Descriptor = YawNoticeBubbleDrawDescriptor;
};
INSTANTIATE_TYPED_TEST_SUITE_P(YawNotice, WholeNameBubbleTest, YawNotice, MarkerWord);

using YawNoticeBubbleTest = WholeNameBubbleTest<YawNotice>;

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

TEST_F(YawNoticeBubbleTest, KeysOfAnotherTypeKeepTheDefaults) {
  DecodeOne(R"({"scene":"3","content":5,"lan":[],"type":6.0,"direction":null,"mode":1,"is_force_":true,)"
            R"("reason":"4"})");
  EXPECT_EQ(Base(), YawNoticeBubbleDrawDescriptor());
}

TEST_F(YawNoticeBubbleTest, NameShorterThanThePrefixDoesNotThrow) {
  transform_.ParseResourceName<YawNoticeBubbleDrawDescriptor>("{}", out_);
  EXPECT_TRUE(Out<YawNoticeBubbleDrawDescriptor>().mode_flag);
  transform_.ParseResourceName<YawNoticeBubbleDrawDescriptor>("", out_);
  EXPECT_EQ(Base(), YawNoticeBubbleDrawDescriptor());
}

}  // namespace
}  // namespace kavrix::test
