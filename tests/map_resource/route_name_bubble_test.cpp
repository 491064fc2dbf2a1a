#include "tests/support/decode_test.h"

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;

constexpr char kTag[] = "KavrixMapLayerMgr_BubbleName";
constexpr char kFunction[] = "ParseRouteNameBubbleResourceName";

class RouteNameBubbleTest : public DecodeTest {
 protected:
  const BubbleDrawDescriptor& DecodeRouteName(const std::string& fields) {
    Decode(fields + ".nameBubble");
    return Base();
  }

  // Decodes prefix + `rest`, which needs no marker here.
  const BubbleDrawDescriptor& ParseRest(const std::string& rest) {
    transform_.ParseRouteNameBubbleResourceName(MapResourceManager::kavrix_resource_prefix + rest, out_);
    return Base();
  }

  // Returns the descriptor of a name whose fields cannot be read.
  static BubbleDrawDescriptor OnlyStyle() {
    BubbleDrawDescriptor bubble;
    bubble.style_name = "route_name_style";
    bubble.style_word = WordOf(1, 2);
    bubble.style_scale = {FloatOf(1, 3), FloatOf(1, 3)};
    return bubble;
  }
};

TEST_F(RouteNameBubbleTest, EveryFieldFillsItsMember) {
  BubbleDrawDescriptor expected;
  expected.content = "G4 京港澳高速";
  expected.mode_flag = true;
  expected.scene = 2;
  expected.direction = 3;
  expected.bubble_kind = 0;
  expected.style_name = "route_name_scene_style";
  expected.style_word = WordOf(10, 2);
  expected.style_scale = {FloatOf(10, 3), FloatOf(10, 3)};
  EXPECT_EQ(DecodeRouteName("G4 京港澳高速_0_2@3"), expected);
  EXPECT_STREQ(Base().TypeName(), "BubbleDrawDescriptor");
}

TEST_F(RouteNameBubbleTest, RoutineRecordPrintsTheDescriptor) {
  DecodeRouteName("G4_0_0@3");
  EXPECT_THAT(records(), ElementsAre(Request(), Routine(kTag, kFunction, Printed(Base()))));
  EXPECT_EQ(records()[1].message,
            "[Kavrix][ctx]BubbleDrawDescriptor{scene:0, content:\"G4\", lan:\"\", bubble_kind:0, type:0, "
            "direction:3, mode_flag:true, style_name:\"route_name_style\", icon:\"\", style_word:1002, "
            "style_scale:[103.500000, 103.500000], selected:false, is_force:false}");
}

TEST_F(RouteNameBubbleTest, UnderscoreInTheContentLosesTheHeadButNotTheDirection) {
  auto expected = OnlyStyle();
  expected.direction = 3;
  EXPECT_EQ(DecodeRouteName("G4_west_0_2@3"), expected);
}

TEST_F(RouteNameBubbleTest, MissingHeadFieldLosesTheHeadButNotTheDirection) {
  auto expected = OnlyStyle();
  expected.direction = 3;
  for (const std::string head : {"", "G4", "G4_0"}) EXPECT_EQ(DecodeRouteName(head + "@3"), expected) << head;
}

TEST_F(RouteNameBubbleTest, AtSignInTheContentLosesEverything) {
  EXPECT_EQ(DecodeRouteName("G4@west_0_2@3"), OnlyStyle());
}

TEST_F(RouteNameBubbleTest, MissingAtSignLosesEverything) {
  EXPECT_EQ(DecodeRouteName("G4_0_2"), OnlyStyle());
  EXPECT_EQ(DecodeRouteName(""), OnlyStyle());
}

TEST_F(RouteNameBubbleTest, ModeZeroSetsTheFlag) {
  for (const std::string mode : {"0", "00", "-0", "+0"}) {
    EXPECT_TRUE(DecodeRouteName("G4_" + mode + "_2@3").mode_flag) << mode;
  }
}

TEST_F(RouteNameBubbleTest, OtherModesClearTheFlag) {
  for (const std::string mode : {"1", "2", "-1"}) {
    EXPECT_FALSE(DecodeRouteName("G4_" + mode + "_2@3").mode_flag) << mode;
  }
}

TEST_F(RouteNameBubbleTest, ModeThatIsNoNumberLeavesTheFlagAloneAndTheSceneIsRead) {
  for (const std::string mode : {"", "abc", "0x", " 0", "0 ", "0.0", "--0", "4294967296"}) {
    const auto& bubble = DecodeRouteName("G4_" + mode + "_2@3");
    EXPECT_FALSE(bubble.mode_flag) << mode;
    EXPECT_EQ(bubble.scene, 2) << mode;
  }
}

TEST_F(RouteNameBubbleTest, SceneZeroSelectsRouteNameStyle) {
  const auto& bubble = DecodeRouteName("G4_1_0@3");
  EXPECT_EQ(bubble.style_name, "route_name_style");
  EXPECT_EQ(bubble.style_word, WordOf(1, 2));
  EXPECT_THAT(bubble.style_scale, ElementsAre(FloatOf(1, 3), FloatOf(1, 3)));
}

TEST_F(RouteNameBubbleTest, EveryOtherSceneSelectsRouteNameSceneStyle) {
  for (const int scene : {1, 2, -1, 2147483647}) {
    const auto& bubble = DecodeRouteName("G4_1_" + std::to_string(scene) + "@3");
    EXPECT_EQ(bubble.scene, scene);
    EXPECT_EQ(bubble.style_name, "route_name_scene_style");
    EXPECT_EQ(bubble.style_word, WordOf(10, 2));
    EXPECT_THAT(bubble.style_scale, ElementsAre(FloatOf(10, 3), FloatOf(10, 3)));
  }
}

TEST_F(RouteNameBubbleTest, SceneThatIsNoNumberStaysZero) {
  for (const std::string scene : {"", "x", "2x", "2147483648", "1e1"}) {
    const auto& bubble = DecodeRouteName("G4_0_" + scene + "@3");
    EXPECT_EQ(bubble.scene, 0) << scene;
    EXPECT_EQ(bubble.style_name, "route_name_style") << scene;
    EXPECT_EQ(bubble.content, "G4") << scene;
    EXPECT_TRUE(bubble.mode_flag) << scene;
  }
}

TEST_F(RouteNameBubbleTest, EmptyContentIsReadAsSuch) {
  const auto& bubble = DecodeRouteName("_0_2@3");
  EXPECT_EQ(bubble.content, "");
  EXPECT_TRUE(bubble.mode_flag);
  EXPECT_EQ(bubble.scene, 2);
  EXPECT_EQ(bubble.direction, 3);
}

TEST_F(RouteNameBubbleTest, BlanksAndDotsOfTheContentAreKept) {
  EXPECT_EQ(DecodeRouteName(" St. John's Rd. _0_2@3").content, " St. John's Rd. ");
}

TEST_F(RouteNameBubbleTest, DirectionIsNarrowedTo16Bits) {
  EXPECT_EQ(DecodeRouteName("G4_0_2@70000").direction, 4464);
  EXPECT_EQ(DecodeRouteName("G4_0_2@40000").direction, -25536);
  EXPECT_EQ(DecodeRouteName("G4_0_2@-1").direction, -1);
}

TEST_F(RouteNameBubbleTest, UnreadableTailLeavesTheDirectionAloneButNotTheHead) {
  for (const std::string tail : {"", "x", "3x", " 3", "3.5", "2147483648"}) {
    const auto& bubble = DecodeRouteName("G4_0_2@" + tail);
    EXPECT_EQ(bubble.direction, 0) << tail;
    EXPECT_EQ(bubble.content, "G4") << tail;
    EXPECT_EQ(bubble.scene, 2) << tail;
  }
}

TEST_F(RouteNameBubbleTest, TailWithoutADotLeavesTheDirectionAlone) {
  const auto& bubble = ParseRest("G4_0_2@3");
  EXPECT_EQ(bubble.direction, 0);
  EXPECT_EQ(bubble.content, "G4");
}

TEST_F(RouteNameBubbleTest, WordAfterTheDirectionIsNotExamined) {
  EXPECT_EQ(ParseRest("G4_0_2@3.").direction, 3);
  EXPECT_EQ(ParseRest("G4_0_2@4.other").direction, 4);
  EXPECT_EQ(DecodeRouteName("G4_0_2@5.nameBubble and more").direction, 0);  // a second dot
  Decode("G4_0_2@6.nameBubble and more");
  EXPECT_EQ(Base().direction, 6);
}

TEST_F(RouteNameBubbleTest, NothingIsAFailure) {
  for (const std::string fields : {"", "_", "@", "_@_", "@@", "{}", "G4_0_2", "G4_x_y@z", "a_b_c_d@1"}) {
    DecodeRouteName(fields);
    EXPECT_THAT(records(), ElementsAre(Request(), Routine(kTag, kFunction, Printed(Base())))) << fields;
    EXPECT_EQ(snapshots(), 1) << fields;
  }
}

TEST_F(RouteNameBubbleTest, OneSnapshotIsTakenForAGoodName) {
  DecodeRouteName("G4_0_2@3");
  EXPECT_EQ(snapshots(), 1);
}

TEST_F(RouteNameBubbleTest, StyleWithoutANameIsNotReplacedByTheOther) {
  auto config = MakeConfig();
  config.route_name_scene_style.name = "";
  context_->SetBubbleLayerConfig(config);
  EXPECT_EQ(DecodeRouteName("G4_0_2@3").style_name, "");
  EXPECT_EQ(DecodeRouteName("G4_0_0@3").style_name, "route_name_style");
}

TEST_F(RouteNameBubbleTest, DecodingLeavesTheConfigurationAsItWas) {
  DecodeRouteName("G4_0_0@3");
  EXPECT_EQ(DecodeRouteName("G4_0_0@3").style_name, "route_name_style");
  EXPECT_EQ(context_->GetBubbleLayerConfigInLock().route_name_style.name, "route_name_style");
}

TEST_F(RouteNameBubbleTest, NameShorterThanThePrefixThrowsWithOutAlreadyReplaced) {
  const auto earlier = std::make_shared<BubbleDrawDescriptor>();
  out_ = earlier;
  EXPECT_THROW(DecodeWhole(".nameBubble"), std::out_of_range);
  EXPECT_NE(out_, earlier);
  EXPECT_EQ(Base(), BubbleDrawDescriptor());
  EXPECT_THAT(records(), ElementsAre(Request()));
  EXPECT_EQ(snapshots(), 0);
}

}  // namespace
}  // namespace kavrix::test
