#include "tests/support/decode_test.h"

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;

constexpr char kTag[] = "KavrixMapLayerMgr_RouteLabel";
constexpr char kFunction[] = "ParseRouteLabelBubbleResourceName";

class RouteLabelBubbleTest : public DecodeTest {
 protected:
  const BubbleDrawDescriptor& DecodeLabel(const std::string& fields) {
    Decode(fields + ".labelBubble");
    return Base();
  }

  // Decodes prefix + `rest`, which needs no marker here.
  const BubbleDrawDescriptor& ParseRest(const std::string& rest) {
    transform_.ParseRouteLabelBubbleResourceName(MapResourceManager::kavrix_resource_prefix + rest, out_);
    return Base();
  }

  // Returns the descriptor of a name whose fields cannot be read.
  static BubbleDrawDescriptor OnlyKindAndStyle() {
    BubbleDrawDescriptor label;
    label.bubble_kind = 7;
    label.style_name = "route_label_style";
    label.style_word = WordOf(7, 3);
    label.style_scale = {FloatOf(7, 4), 0};
    return label;
  }
};

TEST_F(RouteLabelBubbleTest, EveryFieldFillsItsMember) {
  auto expected = OnlyKindAndStyle();
  expected.content = "Main St";
  expected.mode_flag = true;
  expected.direction = 12;
  expected.style_word = WordOf(7, 2);
  EXPECT_EQ(DecodeLabel("Main St_0@12"), expected);
  EXPECT_STREQ(Base().TypeName(), "BubbleDrawDescriptor");
}

TEST_F(RouteLabelBubbleTest, RoutineRecordPrintsTheDescriptor) {
  DecodeLabel("Main St_0@12");
  EXPECT_THAT(records(), ElementsAre(Request(), Routine(kTag, kFunction, Printed(Base()))));
  EXPECT_EQ(records()[1].message,
            "[Kavrix][ctx]BubbleDrawDescriptor{scene:0, content:\"Main St\", lan:\"\", bubble_kind:7, "
            "type:0, direction:12, mode_flag:true, style_name:\"route_label_style\", icon:\"\", "
            "style_word:7002, style_scale:[704.500000, 0.000000], selected:false, is_force:false}");
}

TEST_F(RouteLabelBubbleTest, ModeZeroTakesTheWordFromValue2) {
  const auto& label = DecodeLabel("Main St_0@12");
  EXPECT_TRUE(label.mode_flag);
  EXPECT_EQ(label.style_word, WordOf(7, 2));
}

TEST_F(RouteLabelBubbleTest, OtherModesTakeTheWordFromValue3) {
  for (const std::string mode : {"1", "2", "-1"}) {
    const auto& label = DecodeLabel("Main St_" + mode + "@12");
    EXPECT_FALSE(label.mode_flag) << mode;
    EXPECT_EQ(label.style_word, WordOf(7, 3)) << mode;
  }
}

TEST_F(RouteLabelBubbleTest, Value4FillsOnlyTheFirstScale) {
  EXPECT_THAT(DecodeLabel("Main St_0@12").style_scale, ElementsAre(704.5F, 0.0F));
  EXPECT_THAT(DecodeLabel("Main St_1@12").style_scale, ElementsAre(704.5F, 0.0F));
}

TEST_F(RouteLabelBubbleTest, ModeThatIsNoNumberLeavesTheFlagAloneAndTheContentIsRead) {
  for (const std::string mode : {"", "abc", "0x", " 0", "0.0", "2147483648"}) {
    const auto& label = DecodeLabel("Main St_" + mode + "@12");
    EXPECT_FALSE(label.mode_flag) << mode;
    EXPECT_EQ(label.content, "Main St") << mode;
    EXPECT_EQ(label.direction, 12) << mode;
  }
}

TEST_F(RouteLabelBubbleTest, UnderscoreInTheTextLosesTheHeadButNotTheDirection) {
  auto expected = OnlyKindAndStyle();
  expected.direction = 12;
  EXPECT_EQ(DecodeLabel("Main_St_0@12"), expected);
}

TEST_F(RouteLabelBubbleTest, MissingModeLosesTheHeadButNotTheDirection) {
  auto expected = OnlyKindAndStyle();
  expected.direction = 12;
  EXPECT_EQ(DecodeLabel("Main St@12"), expected);
  EXPECT_EQ(DecodeLabel("@12"), expected);
}

TEST_F(RouteLabelBubbleTest, MissingAtSignSetsOnlyTheKindAndTheStyle) {
  EXPECT_EQ(DecodeLabel("Main St_0"), OnlyKindAndStyle());
  EXPECT_EQ(DecodeLabel(""), OnlyKindAndStyle());
}

TEST_F(RouteLabelBubbleTest, AtSignInTheTextSetsOnlyTheKindAndTheStyle) {
  EXPECT_EQ(DecodeLabel("Main@St_0@12"), OnlyKindAndStyle());
}

TEST_F(RouteLabelBubbleTest, EmptyTextAndTextWithDotsAreRead) {
  const auto& empty = DecodeLabel("_0@12");
  EXPECT_EQ(empty.content, "");
  EXPECT_TRUE(empty.mode_flag);
  EXPECT_EQ(DecodeLabel(" St. John's | Rd. _0@12").content, " St. John's | Rd. ");
}

TEST_F(RouteLabelBubbleTest, DirectionIsNarrowedTo16Bits) {
  EXPECT_EQ(DecodeLabel("Main St_0@70000").direction, 4464);
  EXPECT_EQ(DecodeLabel("Main St_0@40000").direction, -25536);
  EXPECT_EQ(DecodeLabel("Main St_0@-1").direction, -1);
}

TEST_F(RouteLabelBubbleTest, UnreadableTailLeavesTheDirectionAloneButNotTheHead) {
  for (const std::string tail : {"", "x", "12x", "1.2", " 12", "2147483648"}) {
    const auto& label = DecodeLabel("Main St_0@" + tail);
    EXPECT_EQ(label.direction, 0) << tail;
    EXPECT_EQ(label.content, "Main St") << tail;
    EXPECT_TRUE(label.mode_flag) << tail;
  }
  EXPECT_EQ(ParseRest("Main St_0@12").direction, 0);
  EXPECT_EQ(ParseRest("Main St_0@12.other").direction, 12);
}

TEST_F(RouteLabelBubbleTest, NothingIsAFailure) {
  for (const std::string fields : {"", "@", "_", "_@", "a@b@c", "Main St_x@y", "Main St_0@12"}) {
    DecodeLabel(fields);
    EXPECT_THAT(records(), ElementsAre(Request(), Routine(kTag, kFunction, Printed(Base())))) << fields;
    EXPECT_EQ(snapshots(), 1) << fields;
  }
}

TEST_F(RouteLabelBubbleTest, NameShorterThanThePrefixThrowsWithOutAlreadyReplaced) {
  const auto earlier = std::make_shared<BubbleDrawDescriptor>();
  out_ = earlier;
  EXPECT_THROW(DecodeWhole(".labelBubble"), std::out_of_range);
  EXPECT_NE(out_, earlier);
  BubbleDrawDescriptor bare;
  bare.bubble_kind = 7;
  EXPECT_EQ(Base(), bare);
  EXPECT_THAT(records(), ElementsAre(Request()));
  EXPECT_EQ(snapshots(), 0);
}

}  // namespace
}  // namespace kavrix::test
