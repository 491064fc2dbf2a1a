#include <limits>

#include "tests/support/decode_test.h"

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;

constexpr char kTag[] = "KavrixMapLayerMgr_BubbleTraffic";
constexpr char kFunction[] = "ParseViaCircleBubbleResourceName";

class ViaCircleBubbleTest : public DecodeTest {
 protected:
  const ViaPointDrawDescriptor& DecodeVia(const std::string& payload) {
    Decode(payload + ".viaCircleBubble");
    return Out<ViaPointDrawDescriptor>();
  }
  static ViaPointDrawDescriptor Bare() {
    ViaPointDrawDescriptor bare;
    bare.bubble_kind = 20;
    return bare;
  }
};

TEST_F(ViaCircleBubbleTest, EveryKeyFillsItsMember) {
  const auto& via =
      DecodeVia(R"({"scene":3,"lan":"zh","mode":0,"direction":2,"route_id":"R9","index":4,"is_selected":1,)"
                R"("is_reached":1,"is_main_map":1,"resource_id":65545})");
  EXPECT_EQ(via.scene, 3);
  EXPECT_EQ(via.lan, "zh");
  EXPECT_EQ(via.bubble_kind, 20);
  EXPECT_EQ(via.direction, 2);
  EXPECT_TRUE(via.mode_flag);
  EXPECT_EQ(via.route_id, "R9");
  EXPECT_EQ(via.index, 4);
  EXPECT_TRUE(via.is_selected);
  EXPECT_TRUE(via.is_reached);
  EXPECT_TRUE(via.is_main_map);
  EXPECT_EQ(via.resource_id, 65545);
}

TEST_F(ViaCircleBubbleTest, SuccessIsNotLoggedAndTakesNoSnapshot) {
  DecodeVia(R"({"scene":3})");
  EXPECT_THAT(records(), ElementsAre(Request()));
  EXPECT_EQ(snapshots(), 0);
}

TEST_F(ViaCircleBubbleTest, FlagsCountWhenNotZero) {
  struct Case {
    const char* key;
    bool ViaPointDrawDescriptor::*flag;
  };
  for (const Case& c : {Case{"is_selected", &ViaPointDrawDescriptor::is_selected},
                        Case{"is_reached", &ViaPointDrawDescriptor::is_reached},
                        Case{"is_main_map", &ViaPointDrawDescriptor::is_main_map}}) {
    const std::string head = std::string("{\"") + c.key + "\":";
    EXPECT_TRUE(DecodeVia(head + "1}").*c.flag) << c.key;
    EXPECT_TRUE(DecodeVia(head + "2}").*c.flag) << c.key;
    EXPECT_TRUE(DecodeVia(head + "-1}").*c.flag) << c.key;
    EXPECT_FALSE(DecodeVia(head + "0}").*c.flag) << c.key;
    EXPECT_FALSE(DecodeVia(head + "true}").*c.flag) << c.key;
    EXPECT_FALSE(DecodeVia(head + "\"1\"}").*c.flag) << c.key;
    EXPECT_FALSE(DecodeVia("{}").*c.flag) << c.key;
  }
}

TEST_F(ViaCircleBubbleTest, ForceAndTheKeyWithTheUnderscoreAreNotRead) {
  const auto& via = DecodeVia(R"({"is_force_":1,"is_selected_":1})");
  EXPECT_FALSE(via.is_force);
  EXPECT_FALSE(via.selected);
  EXPECT_FALSE(via.is_selected);
}

TEST_F(ViaCircleBubbleTest, EmptyObjectGivesTheKindCodeAndAnInvertedModeFlag) {
  DecodeVia("{}");
  ViaPointDrawDescriptor expected = Bare();
  expected.mode_flag = true;
  EXPECT_EQ(Base(), expected);
}

TEST_F(ViaCircleBubbleTest, OnlyModeZeroSetsTheFlagAndAMistypedOneInvertsIt) {
  EXPECT_TRUE(DecodeVia(R"({"mode":0})").mode_flag);
  EXPECT_FALSE(DecodeVia(R"({"mode":1})").mode_flag);
  EXPECT_FALSE(DecodeVia(R"({"mode":-1})").mode_flag);
  EXPECT_TRUE(DecodeVia(R"({"mode":"1"})").mode_flag);
}

TEST_F(ViaCircleBubbleTest, DirectionIsNarrowedTo16Bits) {
  EXPECT_EQ(DecodeVia(R"({"direction":70000})").direction, 4464);
  EXPECT_EQ(DecodeVia(R"({"direction":-1})").direction, -1);
}

TEST_F(ViaCircleBubbleTest, IndexAndResourceIdKeepAll32Bits) {
  const auto& via = DecodeVia(R"({"index":70000,"resource_id":-2147483648})");
  EXPECT_EQ(via.index, 70000);
  EXPECT_EQ(via.resource_id, std::numeric_limits<std::int32_t>::min());
}

TEST_F(ViaCircleBubbleTest, KeysOfAnotherTypeKeepTheDefaults) {
  DecodeVia(R"({"scene":"3","lan":1,"mode":1,"direction":2.0,"route_id":9,"index":null,"is_selected":[],)"
            R"("is_reached":{},"is_main_map":1.0,"resource_id":3000000000})");
  EXPECT_EQ(Base(), Bare());
}

TEST_F(ViaCircleBubbleTest, BrokenPayloadIsLoggedUnderTheTrafficTagAndLeavesOnlyTheKindCode) {
  for (const std::string payload : {"", "{", "[1]", "5", "null", "\"{}\"", R"({"scene":3,})"}) {
    DecodeVia(payload);
    EXPECT_EQ(Base(), Bare()) << payload;
    EXPECT_THAT(records(), ElementsAre(Request(), Failure(kTag, kFunction, "parse json failed: " + payload)));
    EXPECT_EQ(snapshots(), 0);
  }
}

TEST_F(ViaCircleBubbleTest, NameWithPrefixButShorterThanTheMarkerIsParsedToItsEnd) {
  transform_.ParseViaCircleBubbleResourceName(
      MapResourceManager::kavrix_resource_prefix + std::string(R"({"index":4})"), out_);
  EXPECT_EQ(Out<ViaPointDrawDescriptor>().index, 4);
}

TEST_F(ViaCircleBubbleTest, MarkerThatBeginsInsideThePrefixLeavesTheRestOfTheNameAsPayload) {
  DecodeWhole("kavrix://.viaCircleBubble");
  EXPECT_THAT(records(), ElementsAre(Request(), Failure(kTag, kFunction, "parse json failed: eBubble")));
  EXPECT_EQ(Base(), Bare());
}

TEST_F(ViaCircleBubbleTest, NameShorterThanThePrefixThrowsWithTheKindCodeAlreadySet) {
  EXPECT_THROW(DecodeWhole(".viaCircleBubble"), std::out_of_range);
  EXPECT_EQ(Base(), Bare());
  EXPECT_THAT(records(), ElementsAre(Request()));
}

}  // namespace
}  // namespace kavrix::test
