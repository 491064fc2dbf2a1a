#include "tests/support/decode_test.h"

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;

constexpr char kTag[] = "KavrixMapLayerMgr_DestNameEta";
constexpr char kFunction[] = "ParseEtaBubbleResourceName";

class EtaBubbleTest : public DecodeTest {
 protected:
  const DestNameEtaDrawDescriptor& DecodeEta(const std::string& fields) {
    Decode(fields + ".etaBubble");
    return Out<DestNameEtaDrawDescriptor>();
  }

  // Decodes prefix + `rest`, which needs no marker here.
  const DestNameEtaDrawDescriptor& ParseRest(const std::string& rest) {
    transform_.ParseEtaBubbleResourceName(MapResourceManager::kavrix_resource_prefix + rest, out_);
    return Out<DestNameEtaDrawDescriptor>();
  }

  SeenRecord Opening() const { return Routine(kTag, kFunction, "resource_name:" + name_); }

  // Returns the descriptor of a name whose fields cannot be read.
  static DestNameEtaDrawDescriptor OnlyStyle() {
    DestNameEtaDrawDescriptor eta;
    eta.style_name = "eta_style";
    eta.style_scale = {FloatOf(5, 2), FloatOf(5, 8)};
    eta.style_word = WordOf(5, 4);
    eta.second_style_value = WordOf(5, 5);
    eta.second_mode_style_value = WordOf(5, 7);
    eta.third_mode_style_value = WordOf(5, 10);
    eta.fourth_mode_style_value = WordOf(5, 12);
    return eta;
  }
};

TEST_F(EtaBubbleTest, ModeZeroInSceneZeroTakesEtaStyleAndItsFirstValues) {
  DestNameEtaDrawDescriptor expected;
  expected.content = "Home";
  expected.sub_text = "12 min";
  expected.mode_flag = true;
  expected.scene = 0;
  expected.direction = 3;
  expected.style_name = "eta_style";
  expected.style_scale = {FloatOf(5, 2), FloatOf(5, 8)};
  expected.style_word = WordOf(5, 3);
  expected.second_style_value = WordOf(5, 5);
  expected.second_mode_style_value = WordOf(5, 6);
  expected.third_mode_style_value = WordOf(5, 9);
  expected.fourth_mode_style_value = WordOf(5, 11);
  EXPECT_EQ(DecodeEta("Home|12 min_0_x_0@3"), expected);
}

TEST_F(EtaBubbleTest, ModeOneInAnotherSceneTakesEtaSceneStyleAndItsSecondValues) {
  DestNameEtaDrawDescriptor expected;
  expected.content = "Home";
  expected.sub_text = "12 min";
  expected.mode_flag = false;
  expected.scene = 2;
  expected.direction = 3;
  expected.style_name = "eta_scene_style";
  expected.style_scale = {FloatOf(6, 2), FloatOf(6, 8)};
  expected.style_word = WordOf(6, 4);
  expected.second_style_value = WordOf(6, 5);
  expected.second_mode_style_value = WordOf(6, 7);
  expected.third_mode_style_value = WordOf(6, 10);
  expected.fourth_mode_style_value = WordOf(6, 12);
  EXPECT_EQ(DecodeEta("Home|12 min_1_x_2@3"), expected);
}

TEST_F(EtaBubbleTest, NameIsLoggedFirstAndTheWholeDescriptorLast) {
  const auto& eta = DecodeEta("Home|12 min_0_x_0@3");
  EXPECT_THAT(records(), ElementsAre(Request(), Opening(), Routine(kTag, kFunction, Printed(eta))));
  EXPECT_EQ(records()[1].message,
            "[Kavrix][ctx]resource_name:kavrix://resource/Home|12 min_0_x_0@3.etaBubble");
  EXPECT_EQ(records()[2].message,
            "[Kavrix][ctx]DestNameEtaDrawDescriptor{scene:0, content:\"Home\", lan:\"\", bubble_kind:0, "
            "type:0, direction:3, mode_flag:true, style_name:\"eta_style\", icon:\"\", style_word:5003, "
            "style_scale:[502.500000, 508.500000], selected:false, is_force:false, sub_text:\"12 min\", "
            "second_style_value:5005, second_mode_style_value:5006, third_mode_style_value:5009, "
            "fourth_mode_style_value:5011}");
}

TEST_F(EtaBubbleTest, EveryOtherSceneSelectsEtaSceneStyle) {
  for (const int scene : {1, -1, 2147483647}) {
    const auto& eta = DecodeEta("Home_0_x_" + std::to_string(scene) + "@3");
    EXPECT_EQ(eta.scene, scene);
    EXPECT_EQ(eta.style_name, "eta_scene_style");
    EXPECT_EQ(eta.style_word, WordOf(6, 3));
  }
}

TEST_F(EtaBubbleTest, TheTwoScalesAreTwoValues) {
  EXPECT_THAT(DecodeEta("Home_0_x_0@3").style_scale, ElementsAre(502.5F, 508.5F));
  EXPECT_THAT(DecodeEta("Home_0_x_1@3").style_scale, ElementsAre(602.5F, 608.5F));
}

TEST_F(EtaBubbleTest, OnlyTheLastBarSplitsTheText) {
  const auto& eta = DecodeEta("a|b|c_0_x_0@3");
  EXPECT_EQ(eta.content, "a|b");
  EXPECT_EQ(eta.sub_text, "c");
}

TEST_F(EtaBubbleTest, TextWithoutABarIsWholeAndTheSubTextStaysEmpty) {
  const auto& eta = DecodeEta("St. John's_0_x_0@3");
  EXPECT_EQ(eta.content, "St. John's");
  EXPECT_EQ(eta.sub_text, "");
}

TEST_F(EtaBubbleTest, BarAtEitherEndGivesAnEmptyText) {
  const auto& nothing_behind = DecodeEta("Home|_0_x_0@3");
  EXPECT_EQ(nothing_behind.content, "Home");
  EXPECT_EQ(nothing_behind.sub_text, "");
  const auto& nothing_before = DecodeEta("|12 min_0_x_0@3");
  EXPECT_EQ(nothing_before.content, "");
  EXPECT_EQ(nothing_before.sub_text, "12 min");
  const auto& alone = DecodeEta("|_0_x_0@3");
  EXPECT_EQ(alone.content, "");
  EXPECT_EQ(alone.sub_text, "");
}

TEST_F(EtaBubbleTest, EmptyTextIsReadAsSuch) {
  const auto& eta = DecodeEta("_0_x_2@3");
  EXPECT_EQ(eta.content, "");
  EXPECT_TRUE(eta.mode_flag);
  EXPECT_EQ(eta.scene, 2);
}

TEST_F(EtaBubbleTest, BarOutsideTheTextIsNoSeparator) {
  const auto& eta = DecodeEta("Home_0_a|b_0@3");
  EXPECT_EQ(eta.content, "Home");
  EXPECT_EQ(eta.sub_text, "");
}

TEST_F(EtaBubbleTest, ThirdFieldIsNotRead) {
  const auto expected = DecodeEta("Home_0__5@3");
  EXPECT_EQ(expected.scene, 5);
  for (const std::string unread : {"x", "0", "1", "7.5", "{}"}) {
    EXPECT_EQ(DecodeEta("Home_0_" + unread + "_5@3"), expected) << unread;
  }
}

TEST_F(EtaBubbleTest, OnlyModeZeroSetsTheFlag) {
  EXPECT_TRUE(DecodeEta("Home_0_x_0@3").mode_flag);
  for (const std::string mode : {"1", "2", "-1"}) {
    EXPECT_FALSE(DecodeEta("Home_" + mode + "_x_0@3").mode_flag) << mode;
  }
}

TEST_F(EtaBubbleTest, ModeThatIsNoNumberLeavesTheFlagAloneAndTheSceneIsRead) {
  for (const std::string mode : {"abc", "", "0x", " 0", "2147483648"}) {
    const auto& eta = DecodeEta("Home_" + mode + "_x_5@3");
    EXPECT_FALSE(eta.mode_flag) << mode;
    EXPECT_EQ(eta.scene, 5) << mode;
    EXPECT_EQ(eta.content, "Home") << mode;
  }
}

TEST_F(EtaBubbleTest, SceneThatIsNoNumberStaysZeroAndTheModeIsRead) {
  for (const std::string scene : {"abc", "", "5x", " 5", "2147483648"}) {
    const auto& eta = DecodeEta("Home_0_x_" + scene + "@3");
    EXPECT_EQ(eta.scene, 0) << scene;
    EXPECT_TRUE(eta.mode_flag) << scene;
    EXPECT_EQ(eta.style_name, "eta_style") << scene;
  }
}

TEST_F(EtaBubbleTest, ThreeOrFiveFieldsLoseTheHeadButNotTheDirection) {
  auto expected = OnlyStyle();
  expected.direction = 3;
  for (const std::string head : {"", "Home|12 min", "Home_0_2", "My_Home|12 min_0_x_2", "Home_0_x_2_"}) {
    EXPECT_EQ(DecodeEta(head + "@3"), expected) << head;
  }
}

TEST_F(EtaBubbleTest, AnyOtherNumberOfAtSignsSetsOnlyTheStyle) {
  for (const std::string fields : {"", "Home|12 min_0_x_2", "Home@x_0_x_2@3", "a|b"}) {
    EXPECT_EQ(DecodeEta(fields), OnlyStyle()) << fields;
  }
}

TEST_F(EtaBubbleTest, DirectionIsNarrowedTo16Bits) {
  EXPECT_EQ(DecodeEta("Home_0_x_0@70000").direction, 4464);
  EXPECT_EQ(DecodeEta("Home_0_x_0@40000").direction, -25536);
  EXPECT_EQ(DecodeEta("Home_0_x_0@-1").direction, -1);
}

TEST_F(EtaBubbleTest, UnreadableTailLeavesTheDirectionAloneButNotTheHead) {
  for (const std::string tail : {"", "x", "3x", "3.5", " 3", "2147483648"}) {
    const auto& eta = DecodeEta("Home|12 min_0_x_2@" + tail);
    EXPECT_EQ(eta.direction, 0) << tail;
    EXPECT_EQ(eta.content, "Home") << tail;
    EXPECT_EQ(eta.sub_text, "12 min") << tail;
    EXPECT_EQ(eta.scene, 2) << tail;
  }
  EXPECT_EQ(ParseRest("Home_0_x_0@3").direction, 0);
  EXPECT_EQ(ParseRest("Home_0_x_0@3.other").direction, 3);
}

TEST_F(EtaBubbleTest, NothingIsAFailure) {
  for (const std::string fields : {"", "@", "_", "___@", "a@b@c", "Home_x_y_z@w", "Home_0_x_2@3"}) {
    const auto& eta = DecodeEta(fields);
    EXPECT_THAT(records(), ElementsAre(Request(), Opening(), Routine(kTag, kFunction, Printed(eta))));
    EXPECT_EQ(snapshots(), 1) << fields;
  }
}

TEST_F(EtaBubbleTest, NameShorterThanThePrefixIsLoggedAndThrowsWithOutAlreadyReplaced) {
  const auto earlier = std::make_shared<BubbleDrawDescriptor>();
  out_ = earlier;
  EXPECT_THROW(DecodeWhole(".etaBubble"), std::out_of_range);
  EXPECT_NE(out_, earlier);
  EXPECT_EQ(Base(), DestNameEtaDrawDescriptor());
  EXPECT_THAT(records(), ElementsAre(Request(), Opening()));
  EXPECT_EQ(snapshots(), 0);
}

}  // namespace
}  // namespace kavrix::test
