#include "map_resource/bubble_kinds.h"

#include <gtest/gtest.h>
#include <json/value.h>

#include <optional>
#include <string>
#include <vector>

namespace kavrix::test {
namespace {

struct ExpectedKind {
  const char* marker;
  std::size_t marker_length;
  const char* descriptor_type;
  int way;
  std::optional<int> kind_code;
};

// All kinds in the order of recognition, marker names last.
const std::vector<ExpectedKind> kExpectedKinds = {
    {".trafficBubble", 14, "TrafficDrawDescriptor", 1, 1},
    {".nameBubble", 11, "BubbleDrawDescriptor", 2, 0},
    {".inDoorEntriesBubble", 20, "IndoorEntriesBubbleDrawDescriptor", 2, 13},
    {".companionBubble", 16, "CompanionBubbleDrawDescriptor", 2, {}},
    {".cameraBubble", 13, "CameraDrawDescriptor", 1, {}},
    {".etaBubble", 10, "DestNameEtaDrawDescriptor", 2, {}},
    {".labelBubble", 12, "BubbleDrawDescriptor", 2, 7},
    {".routeExplainBubble", 19, "ExplainBubbleDrawDescriptor", 1, {}},
    {".markerBubble", 13, "BubbleDrawDescriptor", 1, 0},
    {".lightCountdownBubble", 21, "LightCountdownTimerDrawDescriptor", 2, {}},
    {".multiLightCountdownBubble", 26, "MultiLightCountdownTimerDrawDescriptor", 2, {}},
    {".viaCircleBubble", 16, "ViaPointDrawDescriptor", 1, 20},
    {".lightWaitBubble", 16, "LightWaitBubbleDrawDescriptor", 2, 14},
    {".turnBubble", 11, "TurnArrowBubbleDrawDescriptor", 1, 10},
    {".hdLongSolidBubble", 18, "HDLongSolidBubbleDrawDescriptor", 2, 12},
    {".UndergroundParkBubble", 22, "BubbleDrawDescriptor", 1, 25},
    {".ForceDotBubble", 15, "BubbleDrawDescriptor", 1, 27},
    {".ForcePollBubble", 16, "BubbleDrawDescriptor", 1, 28},
    {".YawNoticeBubble", 16, "YawNoticeBubbleDrawDescriptor", 3, {}},
    {".RouteAccidentBubble", 20, "RouteAccidentBubbleDrawDescriptor", 3, {}},
    {".SafeWarningBubble", 18, "SafeWarningBubbleDrawDescriptor", 1, {}},
    {".LaneChangeBubble", 17, "HDLaneChangeBubbleDrawDescriptor", 3, {}},
    {".marker", 7, "MarkerDrawDescriptor", 1, 21},
};

TEST(BubbleKindsTest, KindsStandInTheOrderOfRecognitionWithTheirFacts) {
  for (std::size_t i = 0; i < AllKindInfos().size(); ++i) {
    const BubbleKindInfo& info = *AllKindInfos()[i];
    ASSERT_LT(i, kExpectedKinds.size()) << info.marker;
    const ExpectedKind& expected = kExpectedKinds[i];
    ASSERT_EQ(info.marker, expected.marker);
    EXPECT_EQ(info.marker.size(), expected.marker_length) << expected.marker;
    EXPECT_STREQ(info.descriptor_type, expected.descriptor_type) << expected.marker;
    EXPECT_EQ(static_cast<int>(info.way), expected.way) << expected.marker;
    EXPECT_EQ(info.kind_code, expected.kind_code) << expected.marker;
  }
  EXPECT_EQ(AllKindInfos().size(), kExpectedKinds.size());
}

TEST(BubbleKindsTest, OnlyMarkerNamesHaveTheSecondEntryPoint) {
  for (const BubbleKindInfo* const info : AllKindInfos()) {
    EXPECT_EQ(info->entry_point == EntryPoint::kMarker, info == &kMarkerNameInfo) << info->marker;
  }
}

TEST(BubbleKindsTest, KindIsFoundByItsName) {
  for (const BubbleKindInfo* const info : AllKindInfos()) EXPECT_EQ(FindKindInfo(info->Name()), info);
  EXPECT_EQ(FindKindInfo("trafficbubble"), nullptr);
  EXPECT_EQ(FindKindInfo(".trafficBubble"), nullptr);
  EXPECT_EQ(FindKindInfo(""), nullptr);
}

TEST(BubbleKindsTest, InfoOfAKindEncodesNamesOfThatKind) {
  for (const BubbleKind kind : kBubbleKinds) {
    const std::string name = InfoOf(kind).codec.encode_fields(Json::objectValue);
    EXPECT_EQ(name.substr(name.rfind('.')), MarkerOf(kind)) << name;
  }
}

}  // namespace
}  // namespace kavrix::test
