#include "tests/support/decode_test.h"

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr char kCameraTag[] = "KavrixMapLayerMgr_CameraLayer";
constexpr char kFunction[] = "ParseRouteExplainBubbleResourceName";

class RouteExplainBubbleTest : public DecodeTest {
 protected:
  const ExplainBubbleDrawDescriptor& DecodeExplain(const std::string& payload) {
    Decode(payload + ".routeExplainBubble");
    return Out<ExplainBubbleDrawDescriptor>();
  }
};

constexpr char kFullPayload[] =
    R"({"second_content":["省3分钟","少2个红绿灯"],"scene":3,"mode":0,"uid":"u1","content":"避开拥堵",)"
    R"("icon":"clock","lan":"zh","second_type":1,"scene_type":2,"bubble_type":4,"direction":90})";

TEST_F(RouteExplainBubbleTest, EveryKeyFillsItsMember) {
  ExplainBubbleDrawDescriptor expected;
  expected.second_content = {"省3分钟", "少2个红绿灯"};
  expected.scene = 3;
  expected.mode_flag = true;
  expected.uid = "u1";
  expected.explain_content = "避开拥堵";
  expected.icon = "clock";
  expected.lan = "zh";
  expected.second_type = 1;
  expected.scene_type = 2;
  expected.bubble_type = 4;
  expected.direction = 90;
  EXPECT_EQ(DecodeExplain(kFullPayload), expected);
}

TEST_F(RouteExplainBubbleTest, RoutineRecordPrintsAllMembersUnderTheCamerasTag) {
  const auto& explain = DecodeExplain(kFullPayload);
  EXPECT_THAT(records(), ElementsAre(Request(), Routine(kCameraTag, kFunction, Printed(explain))));
  EXPECT_EQ(records()[1].message,
            "[Kavrix][ctx]ExplainBubbleDrawDescriptor{scene:3, content:\"\", lan:\"zh\", bubble_kind:0, "
            "type:0, direction:90, mode_flag:true, style_name:\"\", icon:\"clock\", style_word:0, "
            "style_scale:[0.000000, 0.000000], selected:false, is_force:false, uid:\"u1\", "
            "explain_content:\"避开拥堵\", second_content:[\"省3分钟\", \"少2个红绿灯\"], second_type:1, "
            "scene_type:2, bubble_type:4}");
}

TEST_F(RouteExplainBubbleTest, ContentFillsExplainContentAndNotTheBase) {
  const auto& explain = DecodeExplain(R"({"content":"c"})");
  EXPECT_EQ(explain.explain_content, "c");
  EXPECT_EQ(explain.content, "");
  EXPECT_EQ(DecodeExplain(R"({"explain_content":"c"})").explain_content, "");
}

TEST_F(RouteExplainBubbleTest, ElementsOfSecondContentThatAreNoTextsAreSkippedSilently) {
  const auto& explain = DecodeExplain(R"({"second_content":["a",3,"b"]})");
  EXPECT_THAT(explain.second_content, ElementsAre("a", "b"));
  EXPECT_THAT(records(), ElementsAre(Request(), Routine(kCameraTag, kFunction, Printed(explain))));
}

TEST_F(RouteExplainBubbleTest, ElementOfSecondContentOfAnyOtherJsonTypeIsSkipped) {
  const auto& explain = DecodeExplain(
      R"({"second_content":[1,-1.5,null,true,["x"],[],{"y":"z"},{},"","last"],"scene_type":2})");
  EXPECT_THAT(explain.second_content, ElementsAre("", "last"));
  EXPECT_EQ(explain.scene_type, 2);
}

TEST_F(RouteExplainBubbleTest, SecondContentThatIsNoArrayAddsNothingAndTheOtherKeysAreRead) {
  for (const std::string value : {"\"a\"", "3", "null", "true", "{}", R"({"0":"a"})"}) {
    const auto& explain = DecodeExplain(R"({"second_content":)" + value + R"(,"uid":"u1"})");
    EXPECT_THAT(explain.second_content, IsEmpty()) << value;
    EXPECT_EQ(explain.uid, "u1") << value;
  }
}

TEST_F(RouteExplainBubbleTest, AbsentOrEmptySecondContentAddsNothing) {
  EXPECT_THAT(DecodeExplain("{}").second_content, IsEmpty());
  EXPECT_THAT(DecodeExplain(R"({"second_content":[]})").second_content, IsEmpty());
}

TEST_F(RouteExplainBubbleTest, SecondContentKeepsNulBytesOfItsTexts) {
  EXPECT_THAT(DecodeExplain(R"({"second_content":["a\u0000b"]})").second_content,
              ElementsAre(std::string("a\0b", 3)));
}

TEST_F(RouteExplainBubbleTest, DirectionIsNarrowedTo16Bits) {
  EXPECT_EQ(DecodeExplain(R"({"direction":70000})").direction, 4464);
  EXPECT_EQ(DecodeExplain(R"({"direction":40000})").direction, -25536);
  EXPECT_EQ(DecodeExplain(R"({"direction":-1})").direction, -1);
}

TEST_F(RouteExplainBubbleTest, EmptyObjectGivesDefaultsWithTheFlagInverted) {
  ExplainBubbleDrawDescriptor expected;
  expected.mode_flag = true;
  EXPECT_EQ(DecodeExplain("{}"), expected);
}

TEST_F(RouteExplainBubbleTest, OnlyModeZeroSetsTheFlagAndAMistypedModeInvertsIt) {
  EXPECT_TRUE(DecodeExplain(R"({"mode":0})").mode_flag);
  EXPECT_FALSE(DecodeExplain(R"({"mode":1})").mode_flag);
  EXPECT_FALSE(DecodeExplain(R"({"mode":-1})").mode_flag);
  EXPECT_TRUE(DecodeExplain(R"({"mode":"1"})").mode_flag);
  EXPECT_TRUE(DecodeExplain(R"({"mode":1.0})").mode_flag);
}

TEST_F(RouteExplainBubbleTest, ForceAndSelectionAreNotRead) {
  const auto& explain = DecodeExplain(R"({"is_force_":1,"is_selected_":1,"bubble_kind":5,"type":5})");
  EXPECT_FALSE(explain.is_force);
  EXPECT_FALSE(explain.selected);
  EXPECT_EQ(explain.bubble_kind, 0);
  EXPECT_EQ(explain.type, 0);
}

TEST_F(RouteExplainBubbleTest, KeysOfAnotherTypeKeepTheDefaults) {
  ExplainBubbleDrawDescriptor expected;
  expected.mode_flag = true;
  EXPECT_EQ(DecodeExplain(R"({"second_content":1,"scene":"3","mode":[],"uid":1,"content":null,"icon":{},)"
                          R"("lan":true,"second_type":1.0,"scene_type":"2","bubble_type":[4],)"
                          R"("direction":90.0})"),
            expected);
}

TEST_F(RouteExplainBubbleTest, IntegersBeyond32BitsKeepTheDefaults) {
  const auto& explain =
      DecodeExplain(R"({"second_type":2147483648,"scene_type":-2147483649,"bubble_type":-2147483648})");
  EXPECT_EQ(explain.second_type, 0);
  EXPECT_EQ(explain.scene_type, 0);
  EXPECT_EQ(explain.bubble_type, -2147483647 - 1);
}

TEST_F(RouteExplainBubbleTest, BrokenPayloadLeavesABareDescriptorAndOneRecordUnderTheCamerasTag) {
  for (const std::string payload : {"", "{", "[]", "[{}]", "5", "null", "\"{}\"", R"({"uid":"u1",})"}) {
    EXPECT_EQ(DecodeExplain(payload), ExplainBubbleDrawDescriptor()) << payload;
    EXPECT_THAT(records(),
                ElementsAre(Request(), Failure(kCameraTag, kFunction, "parse json failed: " + payload)));
    EXPECT_EQ(snapshots(), 0) << payload;
  }
  DecodeExplain("[{}]");
  EXPECT_EQ(records()[1].message, "[Kavrix][ctx]parse json failed: [{}]");
}

TEST_F(RouteExplainBubbleTest, PayloadNestedTooDeepIsABrokenPayload) {
  const std::string payload = R"({"second_content":)" + std::string(2000, '[') + std::string(2000, ']') + "}";
  EXPECT_EQ(DecodeExplain(payload), ExplainBubbleDrawDescriptor());
  EXPECT_THAT(records(),
              ElementsAre(Request(), Failure(kCameraTag, kFunction, "parse json failed: " + payload)));
}

TEST_F(RouteExplainBubbleTest, NoSnapshotIsTakenAndNoStyleIsSet) {
  const auto& explain = DecodeExplain(kFullPayload);
  EXPECT_EQ(snapshots(), 0);
  EXPECT_EQ(explain.style_name, "");
  EXPECT_EQ(explain.style_word, 0U);
  EXPECT_THAT(explain.style_scale, ElementsAre(0.0F, 0.0F));
}

TEST_F(RouteExplainBubbleTest, NameTooShortForPrefixAndMarkerIsParsedToItsEnd) {
  DecodeWhole(".routeExplainBubble");
  EXPECT_EQ(Base(), ExplainBubbleDrawDescriptor());
  EXPECT_THAT(records(), ElementsAre(Request(), Failure(kCameraTag, kFunction, "parse json failed: e")));
  transform_.ParseRouteExplainBubbleResourceName(
      MapResourceManager::kavrix_resource_prefix + std::string(R"({"uid":"u1"})"), out_);
  EXPECT_EQ(Out<ExplainBubbleDrawDescriptor>().uid, "u1");
}

TEST_F(RouteExplainBubbleTest, NameShorterThanThePrefixThrowsWithOutAlreadyReplaced) {
  const auto earlier = std::make_shared<BubbleDrawDescriptor>();
  out_ = earlier;
  EXPECT_THROW(transform_.ParseRouteExplainBubbleResourceName(R"({"uid":"u1"})", out_), std::out_of_range);
  EXPECT_NE(out_, earlier);
  EXPECT_EQ(Base(), ExplainBubbleDrawDescriptor());
  EXPECT_THAT(records(), IsEmpty());
}

}  // namespace
}  // namespace kavrix::test
