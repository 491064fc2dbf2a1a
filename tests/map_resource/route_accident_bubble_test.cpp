#include "tests/support/whole_name_test.h"

namespace kavrix::test {
namespace {

struct RouteAccident {
  static constexpr const char* kMarker = ".RouteAccidentBubble";
  using Descriptor = RouteAccidentBubbleDrawDescriptor;
};
INSTANTIATE_TYPED_TEST_SUITE_P(RouteAccident, WholeNameBubbleTest, RouteAccident, MarkerWord);

using RouteAccidentBubbleTest = WholeNameBubbleTest<RouteAccident>;

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

TEST_F(RouteAccidentBubbleTest, KeysOfAnotherTypeKeepTheDefaults) {
  DecodeOne(R"({"scene":"3","content":5,"lan":[],"type":6.0,"direction":null,"mode":1,"is_force_":true,)"
            R"("accident_id":7,"severity":2.0})");
  EXPECT_EQ(Base(), RouteAccidentBubbleDrawDescriptor());
}

TEST_F(RouteAccidentBubbleTest, NameShorterThanThePrefixDoesNotThrow) {
  MapResourceTransform::ParseRouteAccidentResourceName("{}", out_);
  EXPECT_TRUE(Out<RouteAccidentBubbleDrawDescriptor>().mode_flag);
  MapResourceTransform::ParseRouteAccidentResourceName("", out_);
  EXPECT_EQ(Base(), RouteAccidentBubbleDrawDescriptor());
}

}  // namespace
}  // namespace kavrix::test
