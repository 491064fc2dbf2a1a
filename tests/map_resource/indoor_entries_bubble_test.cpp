#include "tests/support/decode_test.h"

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;

constexpr char kTag[] = "MapLayerMgr_IndoorEntries";
constexpr char kFunction[] = "ParseIndoorEntriesBubbleResourceName";

class IndoorEntriesBubbleTest : public DecodeTest {
 protected:
  const IndoorEntriesBubbleDrawDescriptor& DecodeEntries(const std::string& fields) {
    Decode(fields + ".inDoorEntriesBubble");
    return Out<IndoorEntriesBubbleDrawDescriptor>();
  }
  std::int16_t EntriesValueOf(const std::string& field) {
    return DecodeEntries("Mall_0_en_" + field + "_East gate@4").entries_value;
  }

  // Decodes prefix + `rest`, which needs no marker here.
  const IndoorEntriesBubbleDrawDescriptor& ParseRest(const std::string& rest) {
    transform_.ParseIndoorEntriesBubbleResourceName(MapResourceManager::kavrix_resource_prefix + rest, out_);
    return Out<IndoorEntriesBubbleDrawDescriptor>();
  }

  // Returns the descriptor of a name whose fields cannot be read.
  static IndoorEntriesBubbleDrawDescriptor OnlyKindAndStyle() {
    IndoorEntriesBubbleDrawDescriptor entries;
    entries.bubble_kind = 13;
    entries.style_name = "indoor_entries_style";
    entries.style_word = WordOf(16, 2);
    entries.style_scale = {FloatOf(16, 3), FloatOf(16, 3)};
    return entries;
  }
};

TEST_F(IndoorEntriesBubbleTest, EveryFieldFillsItsMember) {
  auto expected = OnlyKindAndStyle();
  expected.content = "万达广场";
  expected.mode_flag = true;
  expected.lan = "zh";
  expected.entries_value = 12;
  expected.entries_text = "东门";
  expected.direction = 4;
  EXPECT_EQ(DecodeEntries("万达广场_0_zh_12_东门@4"), expected);
}

TEST_F(IndoorEntriesBubbleTest, RoutineRecordPrintsTheBaseMembersAndTheWholeNameUnderATagOfItsOwn) {
  DecodeEntries("Mall_0_en_12_East gate@4");
  EXPECT_THAT(records(), ElementsAre(Request(), Routine("MapLayerMgr_IndoorEntries", kFunction,
                                                        Printed(Base()) + "resource_name " + name_)));
  EXPECT_EQ(
      records()[1].message,
      "[Kavrix][ctx]BubbleDrawDescriptor{scene:0, content:\"Mall\", lan:\"en\", bubble_kind:13, type:0, "
      "direction:4, mode_flag:true, style_name:\"indoor_entries_style\", icon:\"\", style_word:16002, "
      "style_scale:[1603.500000, 1603.500000], selected:false, is_force:false}"
      "resource_name kavrix://resource/Mall_0_en_12_East gate@4.inDoorEntriesBubble");
}

TEST_F(IndoorEntriesBubbleTest, EntriesValueOfLettersStoresZero) { EXPECT_EQ(EntriesValueOf("abc"), 0); }

TEST_F(IndoorEntriesBubbleTest, EntriesValueTakesTheLeadingDigits) {
  EXPECT_EQ(EntriesValueOf("12abc"), 12);
  EXPECT_EQ(EntriesValueOf("12.9"), 12);
  EXPECT_EQ(EntriesValueOf("7 8"), 7);
  EXPECT_EQ(EntriesValueOf("-3x"), -3);
}

TEST_F(IndoorEntriesBubbleTest, EmptyEntriesValueStoresZero) { EXPECT_EQ(EntriesValueOf(""), 0); }

TEST_F(IndoorEntriesBubbleTest, EntriesValuePassesOverBlanksAndASign) {
  EXPECT_EQ(EntriesValueOf(" \t12"), 12);
  EXPECT_EQ(EntriesValueOf("+12"), 12);
  EXPECT_EQ(EntriesValueOf("-12"), -12);
  EXPECT_EQ(EntriesValueOf("+-12"), 0);
}

TEST_F(IndoorEntriesBubbleTest, EntriesValueIsNarrowedTo16Bits) {
  EXPECT_EQ(EntriesValueOf("32767"), 32767);
  EXPECT_EQ(EntriesValueOf("32768"), -32768);
  EXPECT_EQ(EntriesValueOf("70000"), 4464);
}

TEST_F(IndoorEntriesBubbleTest, FieldsBesideABadEntriesValueAreRead) {
  const auto& entries = DecodeEntries("Mall_0_en_abc_East gate@4");
  EXPECT_EQ(entries.content, "Mall");
  EXPECT_TRUE(entries.mode_flag);
  EXPECT_EQ(entries.lan, "en");
  EXPECT_EQ(entries.entries_text, "East gate");
  EXPECT_EQ(entries.direction, 4);
}

TEST_F(IndoorEntriesBubbleTest, HeadOfFourOrSixFieldsIsLostButNotTheDirection) {
  auto expected = OnlyKindAndStyle();
  expected.direction = 4;
  EXPECT_EQ(DecodeEntries("Mall_0_en_12@4"), expected);
  EXPECT_EQ(DecodeEntries("Mall_0_en_12_East_gate@4"), expected);
  EXPECT_EQ(DecodeEntries("@4"), expected);
}

TEST_F(IndoorEntriesBubbleTest, UnderscoreInTheEntriesTextLosesTheHead) {
  const auto& entries = DecodeEntries("Mall_0_en_12_East_@4");
  EXPECT_EQ(entries.content, "");
  EXPECT_FALSE(entries.mode_flag);
  EXPECT_EQ(entries.lan, "");
  EXPECT_EQ(entries.entries_value, 0);
  EXPECT_EQ(entries.entries_text, "");
  EXPECT_EQ(entries.direction, 4);
}

TEST_F(IndoorEntriesBubbleTest, AnyOtherNumberOfAtSignsLosesEverything) {
  EXPECT_EQ(DecodeEntries("Mall_0_en_12_East gate"), OnlyKindAndStyle());
  EXPECT_EQ(DecodeEntries("M@ll_0_en_12_East gate@4"), OnlyKindAndStyle());
  EXPECT_EQ(DecodeEntries(""), OnlyKindAndStyle());
}

TEST_F(IndoorEntriesBubbleTest, EmptyTextFieldsAreRead) {
  const auto& entries = DecodeEntries("_0__5_@4");
  EXPECT_EQ(entries.content, "");
  EXPECT_TRUE(entries.mode_flag);
  EXPECT_EQ(entries.lan, "");
  EXPECT_EQ(entries.entries_value, 5);
  EXPECT_EQ(entries.entries_text, "");
}

TEST_F(IndoorEntriesBubbleTest, OnlyModeZeroSetsTheFlag) {
  EXPECT_TRUE(DecodeEntries("Mall_0_en_12_East@4").mode_flag);
  for (const std::string mode : {"1", "2", "-1"}) {
    EXPECT_FALSE(DecodeEntries("Mall_" + mode + "_en_12_East@4").mode_flag) << mode;
  }
}

TEST_F(IndoorEntriesBubbleTest, ModeThatIsNoNumberLeavesTheFlagAlone) {
  for (const std::string mode : {"", "abc", "0x", " 0"}) {
    const auto& entries = DecodeEntries("Mall_" + mode + "_en_12_East@4");
    EXPECT_FALSE(entries.mode_flag) << mode;
    EXPECT_EQ(entries.lan, "en") << mode;
  }
}

TEST_F(IndoorEntriesBubbleTest, DirectionIsNarrowedTo16Bits) {
  EXPECT_EQ(DecodeEntries("Mall_0_en_12_East@70000").direction, 4464);
  EXPECT_EQ(DecodeEntries("Mall_0_en_12_East@-1").direction, -1);
}

TEST_F(IndoorEntriesBubbleTest, UnreadableTailLeavesTheDirectionAloneButNotTheHead) {
  for (const std::string tail : {"", "x", "4x", "4.5", " 4"}) {
    const auto& entries = DecodeEntries("Mall_0_en_12_East@" + tail);
    EXPECT_EQ(entries.direction, 0) << tail;
    EXPECT_EQ(entries.entries_value, 12) << tail;
  }
  EXPECT_EQ(ParseRest("Mall_0_en_12_East@4").direction, 0);
  EXPECT_EQ(ParseRest("Mall_0_en_12_East@4.other").direction, 4);
}

TEST_F(IndoorEntriesBubbleTest, NothingIsAFailureAndTheRecordAlwaysEndsWithTheWholeName) {
  for (const std::string fields : {"", "@", "____@", "Mall", "a@b@c", "a_b_c_d_e@f", "Mall_0_en_12@4"}) {
    DecodeEntries(fields);
    EXPECT_THAT(records(),
                ElementsAre(Request(), Routine(kTag, kFunction, Printed(Base()) + "resource_name " + name_)));
    EXPECT_THAT(records().back().message,
                EndsWith("resource_name kavrix://resource/" + fields + ".inDoorEntriesBubble"));
    EXPECT_EQ(snapshots(), 1) << fields;
  }
}

TEST_F(IndoorEntriesBubbleTest, OneSnapshotIsTakenForAGoodName) {
  DecodeEntries("Mall_0_en_12_East@4");
  EXPECT_EQ(snapshots(), 1);
}

TEST_F(IndoorEntriesBubbleTest, BareMarkerIsLongEnoughForThePrefix) {
  DecodeWhole(".inDoorEntriesBubble");
  EXPECT_EQ(Base(), OnlyKindAndStyle());
}

TEST_F(IndoorEntriesBubbleTest, NameShorterThanThePrefixThrowsWithOutAlreadyReplaced) {
  const auto earlier = std::make_shared<BubbleDrawDescriptor>();
  out_ = earlier;
  EXPECT_THROW(transform_.ParseIndoorEntriesBubbleResourceName("_0__5_@4", out_), std::out_of_range);
  EXPECT_NE(out_, earlier);
  IndoorEntriesBubbleDrawDescriptor bare;
  bare.bubble_kind = 13;
  EXPECT_EQ(Base(), bare);
  EXPECT_THAT(records(), ElementsAre());
  EXPECT_EQ(snapshots(), 0);
}

}  // namespace
}  // namespace kavrix::test
