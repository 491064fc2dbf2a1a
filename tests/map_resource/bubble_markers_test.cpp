#include "map_resource/bubble_markers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cctype>
#include <random>
#include <string>

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;

// What recognition means: 22 searches in order.
std::optional<BubbleKind> FindByTwentyTwoSearches(const std::string& name) {
  for (std::size_t i = 0; i < kBubbleMarkers.size(); ++i) {
    if (name.find(kBubbleMarkers[i]) != std::string::npos) return static_cast<BubbleKind>(i);
  }
  return std::nullopt;
}

TEST(BubbleMarkersTest, MarkersStandInTheOrderOfRecognition) {
  EXPECT_THAT(kBubbleMarkers,
              ElementsAre(".trafficBubble", ".nameBubble", ".inDoorEntriesBubble", ".companionBubble",
                          ".cameraBubble", ".etaBubble", ".labelBubble", ".routeExplainBubble",
                          ".markerBubble", ".lightCountdownBubble", ".multiLightCountdownBubble",
                          ".viaCircleBubble", ".lightWaitBubble", ".turnBubble", ".hdLongSolidBubble",
                          ".UndergroundParkBubble", ".ForceDotBubble", ".ForcePollBubble", ".YawNoticeBubble",
                          ".RouteAccidentBubble", ".SafeWarningBubble", ".LaneChangeBubble"));
}

TEST(BubbleMarkersTest, MarkersHaveTheirLengths) {
  std::vector<std::size_t> lengths;
  for (const std::string_view marker : kBubbleMarkers) lengths.push_back(marker.size());
  EXPECT_THAT(lengths, ElementsAre(14, 11, 20, 16, 13, 10, 12, 19, 13, 21, 26, 16, 16, 11, 18, 22, 15, 16, 16,
                                   20, 18, 17));
}

TEST(BubbleMarkersTest, EachKindHasItsMarker) {
  EXPECT_EQ(MarkerOf(BubbleKind::kTraffic), ".trafficBubble");
  EXPECT_EQ(MarkerOf(BubbleKind::kRouteName), ".nameBubble");
  EXPECT_EQ(MarkerOf(BubbleKind::kIndoorEntries), ".inDoorEntriesBubble");
  EXPECT_EQ(MarkerOf(BubbleKind::kCompanion), ".companionBubble");
  EXPECT_EQ(MarkerOf(BubbleKind::kCamera), ".cameraBubble");
  EXPECT_EQ(MarkerOf(BubbleKind::kEta), ".etaBubble");
  EXPECT_EQ(MarkerOf(BubbleKind::kRouteLabel), ".labelBubble");
  EXPECT_EQ(MarkerOf(BubbleKind::kRouteExplain), ".routeExplainBubble");
  EXPECT_EQ(MarkerOf(BubbleKind::kMarker), ".markerBubble");
  EXPECT_EQ(MarkerOf(BubbleKind::kLightCountdown), ".lightCountdownBubble");
  EXPECT_EQ(MarkerOf(BubbleKind::kMultiLightCountdown), ".multiLightCountdownBubble");
  EXPECT_EQ(MarkerOf(BubbleKind::kViaCircle), ".viaCircleBubble");
  EXPECT_EQ(MarkerOf(BubbleKind::kLightWait), ".lightWaitBubble");
  EXPECT_EQ(MarkerOf(BubbleKind::kTurn), ".turnBubble");
  EXPECT_EQ(MarkerOf(BubbleKind::kHdLongSolid), ".hdLongSolidBubble");
  EXPECT_EQ(MarkerOf(BubbleKind::kUndergroundPark), ".UndergroundParkBubble");
  EXPECT_EQ(MarkerOf(BubbleKind::kForceDot), ".ForceDotBubble");
  EXPECT_EQ(MarkerOf(BubbleKind::kForcePoll), ".ForcePollBubble");
  EXPECT_EQ(MarkerOf(BubbleKind::kYawNotice), ".YawNoticeBubble");
  EXPECT_EQ(MarkerOf(BubbleKind::kRouteAccident), ".RouteAccidentBubble");
  EXPECT_EQ(MarkerOf(BubbleKind::kSafeWarning), ".SafeWarningBubble");
  EXPECT_EQ(MarkerOf(BubbleKind::kLaneChange), ".LaneChangeBubble");
  EXPECT_EQ(kMarkerNameTail, ".marker");
}

TEST(FindBubbleKindTest, MarkerIsFoundAtTheBeginningInTheMiddleAndAtTheEnd) {
  for (std::size_t i = 0; i < kBubbleMarkers.size(); ++i) {
    const std::string marker(kBubbleMarkers[i]);
    const auto kind = static_cast<BubbleKind>(i);
    EXPECT_EQ(FindBubbleKind(marker), kind) << marker;
    EXPECT_EQ(FindBubbleKind(marker + "behind"), kind) << marker;
    EXPECT_EQ(FindBubbleKind("a.b" + marker), kind) << marker;
    EXPECT_EQ(FindBubbleKind("...." + marker + ".."), kind) << marker;
  }
}

TEST(FindBubbleKindTest, MarkerCutByOneCharacterAtEitherEndIsNone) {
  for (const std::string_view marker : kBubbleMarkers) {
    EXPECT_EQ(FindBubbleKind(marker.substr(0, marker.size() - 1)), std::nullopt) << marker;
    EXPECT_EQ(FindBubbleKind(marker.substr(1)), std::nullopt) << marker;
  }
}

TEST(FindBubbleKindTest, MarkerWithAnyLetterInTheOtherCaseIsNone) {
  for (const std::string_view marker : kBubbleMarkers) {
    for (std::size_t i = 1; i < marker.size(); ++i) {
      std::string changed(marker);
      const int letter = static_cast<unsigned char>(changed[i]);
      changed[i] = static_cast<char>(std::isupper(letter) != 0 ? std::tolower(letter) : std::toupper(letter));
      EXPECT_EQ(FindBubbleKind(changed), std::nullopt) << changed;
    }
  }
}

TEST(FindBubbleKindTest, OrderBeatsPositionForEveryPairOfMarkers) {
  for (std::size_t i = 0; i < kBubbleMarkers.size(); ++i) {
    for (std::size_t j = i; j < kBubbleMarkers.size(); ++j) {
      const std::string first(kBubbleMarkers[i]);
      const std::string second(kBubbleMarkers[j]);
      EXPECT_EQ(FindBubbleKind("{}" + first + second), static_cast<BubbleKind>(i)) << first << second;
      EXPECT_EQ(FindBubbleKind("{}" + second + first), static_cast<BubbleKind>(i)) << second << first;
    }
  }
}

TEST(FindBubbleKindTest, MultiLightIsNotTakenForTheLightCountdownInsideIt) {
  EXPECT_EQ(FindBubbleKind("{}.multiLightCountdownBubble"), BubbleKind::kMultiLightCountdown);
  EXPECT_EQ(FindBubbleKind("{}.multi.lightCountdownBubble"), BubbleKind::kLightCountdown);
}

TEST(FindBubbleKindTest, NamesWithoutAMarkerHaveNoKind) {
  for (const char* const name : {"", ".", "..", "a", "t.", "trafficBubble", ". trafficBubble", ".marker",
                                 "{}.marker", ".traffic.Bubble", ".traffic Bubble", ".bubble", "前.方"}) {
    EXPECT_EQ(FindBubbleKind(name), std::nullopt) << name;
  }
}

TEST(FindBubbleKindTest, NulAndOtherBytesDoNotEndTheSearch) {
  using namespace std::string_view_literals;
  EXPECT_EQ(FindBubbleKind("a\0.\xFF.\0.turnBubble"sv), BubbleKind::kTurn);
  EXPECT_EQ(FindBubbleKind(".turn\0Bubble"sv), std::nullopt);
}

TEST(FindBubbleKindTest, NothingBehindTheEndOfTheViewIsRead) {
  const std::string_view name = ".trafficBubble";
  EXPECT_EQ(FindBubbleKind(name.substr(0, 13)), std::nullopt);
  EXPECT_EQ(FindBubbleKind(name.substr(0, 1)), std::nullopt);
}

// Names full of dots, whole markers, cut markers, markers in the other case and payload texts.
class NameGenerator {
 public:
  std::string Next() {
    std::string name = Below(2) == 0 ? "kavrix://resource/" : "";
    const int pieces = Below(8);
    for (int i = 0; i < pieces; ++i) name += Piece();
    return name;
  }

 private:
  std::string Piece() {
    static const char* const kTexts[] = {
        "{\"content\":\"a.b\"}", "@", "_", "{}", "t", "Bubble", "前方", "1.5", ".t", ".F"};
    std::string marker(kBubbleMarkers[static_cast<std::size_t>(Below(22))]);
    const auto place = static_cast<std::size_t>(Below(static_cast<int>(marker.size())));
    switch (Below(6)) {
      case 0:
        return marker;
      case 1:
        return marker.substr(0, place);
      case 2:
        return marker.substr(place);
      case 3:
        marker[place] = static_cast<char>(marker[place] ^ 0x20);
        return marker;
      case 4:
        return std::string(static_cast<std::size_t>(Below(6)), '.');
      default:
        return kTexts[Below(10)];
    }
  }
  int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

  std::mt19937 random_{20240229};
};

TEST(FindBubbleKindTest, AgreesWithTwentyTwoSearchesOnGeneratedNames) {
  NameGenerator names;
  int found = 0;
  for (int i = 0; i < 40000; ++i) {
    const std::string name = names.Next();
    const auto expected = FindByTwentyTwoSearches(name);
    ASSERT_EQ(FindBubbleKind(name), expected) << name;
    if (expected) ++found;
  }
  EXPECT_GT(found, 10000);
  EXPECT_LT(found, 30000);
}

}  // namespace
}  // namespace kavrix::test
