#include "tests/support/decode_test.h"

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;

constexpr char kTrafficTag[] = "KavrixMapLayerMgr_BubbleTraffic";
constexpr char kFunction[] = "ParseMarkerBubbleResourceName";

class MarkerBubbleTest : public DecodeTest {
 protected:
  const BubbleDrawDescriptor& DecodeMarkerBubble(const std::string& payload) {
    Decode(payload + ".markerBubble");
    return Base();
  }

  void ConfigureStyle() {
    MarkerBubbleConfig style;
    style.name = "marker_style";
    style.SetWord(1, 91);
    style.SetWord(2, 92);
    style.SetFloat(3, 9.5F);
    style.SetWord(4, 94);
    transform_.SetMarkerBubbleConfig(style);
  }
};

TEST_F(MarkerBubbleTest, EveryKeyFillsItsMember) {
  BubbleDrawDescriptor expected;
  expected.scene = 3;
  expected.mode_flag = true;
  expected.direction = 90;
  expected.content = "故宫博物院";
  EXPECT_EQ(DecodeMarkerBubble(R"({"scene":3,"mode":0,"direction":90,"content":"故宫博物院"})"), expected);
  EXPECT_STREQ(Base().TypeName(), "BubbleDrawDescriptor");
  EXPECT_EQ(Base().bubble_kind, 0);
}

TEST_F(MarkerBubbleTest, EmptyObjectGivesDefaultsWithTheFlagInverted) {
  BubbleDrawDescriptor expected;
  expected.mode_flag = true;
  EXPECT_EQ(DecodeMarkerBubble("{}"), expected);
}

TEST_F(MarkerBubbleTest, ContentIsTheTextAndStaysEmptyWhenAbsent) {
  EXPECT_EQ(DecodeMarkerBubble(R"({"content":"a\u0000b"})").content, std::string("a\0b", 3));
  EXPECT_EQ(DecodeMarkerBubble(R"({"scene":1})").content, "");
}

TEST_F(MarkerBubbleTest, StyleIsTheTransformsOwn) {
  ConfigureStyle();
  const auto& bubble = DecodeMarkerBubble("{}");
  EXPECT_EQ(bubble.style_name, "marker_style");
  EXPECT_EQ(bubble.style_word, 92U);
  EXPECT_THAT(bubble.style_scale, ElementsAre(9.5F, 9.5F));
}

TEST_F(MarkerBubbleTest, StyleIsEmptyUntilItIsConfigured) {
  for (const std::string scene : {"0", "1"}) {
    const auto& bubble = DecodeMarkerBubble(R"({"scene":)" + scene + "}");
    EXPECT_EQ(bubble.style_name, "") << scene;
    EXPECT_EQ(bubble.style_word, 0U) << scene;
    EXPECT_THAT(bubble.style_scale, ElementsAre(0.0F, 0.0F)) << scene;
  }
}

TEST_F(MarkerBubbleTest, LaterStyleReplacesTheEarlierOne) {
  ConfigureStyle();
  transform_.SetMarkerBubbleConfig({});
  EXPECT_EQ(DecodeMarkerBubble("{}").style_name, "");
  EXPECT_EQ(Base().style_word, 0U);
}

TEST_F(MarkerBubbleTest, StyleIsCopiedAndServesTheNextName) {
  ConfigureStyle();
  DecodeMarkerBubble("{}");
  EXPECT_EQ(DecodeMarkerBubble(R"({"scene":2})").style_name, "marker_style");
}

TEST_F(MarkerBubbleTest, BrokenPayloadGetsNoStyle) {
  ConfigureStyle();
  EXPECT_EQ(DecodeMarkerBubble("[]"), BubbleDrawDescriptor());
}

TEST_F(MarkerBubbleTest, SuccessWritesNoRecordOfItsOwn) {
  DecodeMarkerBubble(R"({"scene":3,"mode":0,"direction":90,"content":"c"})");
  EXPECT_THAT(records(), ElementsAre(Request()));
}

TEST_F(MarkerBubbleTest, NoSnapshotIsTaken) {
  DecodeMarkerBubble("{}");
  EXPECT_EQ(snapshots(), 0);
}

TEST_F(MarkerBubbleTest, OnlyModeZeroSetsTheFlagAndAMistypedModeInvertsIt) {
  EXPECT_TRUE(DecodeMarkerBubble(R"({"mode":0})").mode_flag);
  EXPECT_FALSE(DecodeMarkerBubble(R"({"mode":1})").mode_flag);
  EXPECT_FALSE(DecodeMarkerBubble(R"({"mode":-1})").mode_flag);
  EXPECT_TRUE(DecodeMarkerBubble(R"({"mode":"1"})").mode_flag);
  EXPECT_TRUE(DecodeMarkerBubble(R"({"mode":1.0})").mode_flag);
}

TEST_F(MarkerBubbleTest, DirectionIsNarrowedTo16Bits) {
  EXPECT_EQ(DecodeMarkerBubble(R"({"direction":70000})").direction, 4464);
  EXPECT_EQ(DecodeMarkerBubble(R"({"direction":40000})").direction, -25536);
  EXPECT_EQ(DecodeMarkerBubble(R"({"direction":-1})").direction, -1);
}

TEST_F(MarkerBubbleTest, ForceSelectionAndLanguageAreNotRead) {
  const auto& bubble =
      DecodeMarkerBubble(R"({"is_force_":1,"is_selected_":1,"lan":"en","icon":"i","type":5})");
  EXPECT_FALSE(bubble.is_force);
  EXPECT_FALSE(bubble.selected);
  EXPECT_EQ(bubble.lan, "");
  EXPECT_EQ(bubble.icon, "");
  EXPECT_EQ(bubble.type, 0);
}

TEST_F(MarkerBubbleTest, KeysOfAnotherTypeKeepTheDefaults) {
  BubbleDrawDescriptor expected;
  expected.mode_flag = true;
  for (const std::string value : {"null", "true", "1.0", "[]", "[1]", "{}", "2147483648"}) {
    std::string payload = R"({"scene":#,"mode":#,"direction":#,"content":#})";
    for (auto at = payload.find('#'); at != std::string::npos; at = payload.find('#')) {
      payload.replace(at, 1, value);
    }
    EXPECT_EQ(DecodeMarkerBubble(payload), expected) << payload;
  }
  EXPECT_EQ(DecodeMarkerBubble(R"({"scene":"3","direction":"90","content":5})"), expected);
}

TEST_F(MarkerBubbleTest, BrokenPayloadIsLoggedUnderTheTrafficTag) {
  for (const std::string payload : {"", "{", "[1]", "5", "null", "\"{}\"", R"({"content":"c",})"}) {
    EXPECT_EQ(DecodeMarkerBubble(payload), BubbleDrawDescriptor()) << payload;
    EXPECT_THAT(records(),
                ElementsAre(Request(), Failure(kTrafficTag, kFunction, "parse json failed: " + payload)));
    EXPECT_EQ(snapshots(), 0) << payload;
  }
  DecodeMarkerBubble("{");
  EXPECT_EQ(records()[1].message, "[Kavrix][ctx]parse json failed: {");
}

TEST_F(MarkerBubbleTest, PayloadNestedTooDeepIsABrokenPayload) {
  const std::string payload = R"({"content":)" + std::string(2000, '[') + std::string(2000, ']') + "}";
  EXPECT_EQ(DecodeMarkerBubble(payload), BubbleDrawDescriptor());
  EXPECT_THAT(records(),
              ElementsAre(Request(), Failure(kTrafficTag, kFunction, "parse json failed: " + payload)));
}

TEST_F(MarkerBubbleTest, NameTooShortForPrefixAndMarkerIsParsedToItsEnd) {
  DecodeWhole("eight678.markerBubble");
  EXPECT_THAT(records(), ElementsAre(Request(), Failure(kTrafficTag, kFunction, "parse json failed: ble")));
  transform_.ParseMarkerBubbleResourceName(
      MapResourceManager::kavrix_resource_prefix + std::string(R"({"scene":1})"), out_);
  EXPECT_EQ(Base().scene, 1);
}

TEST_F(MarkerBubbleTest, NameShorterThanThePrefixThrowsWithOutAlreadyReplaced) {
  const auto earlier = std::make_shared<BubbleDrawDescriptor>();
  out_ = earlier;
  EXPECT_THROW(DecodeWhole(".markerBubble"), std::out_of_range);
  EXPECT_NE(out_, earlier);
  EXPECT_EQ(Base(), BubbleDrawDescriptor());
  EXPECT_THAT(records(), ElementsAre(Request()));
  EXPECT_EQ(snapshots(), 0);
}

}  // namespace
}  // namespace kavrix::test
