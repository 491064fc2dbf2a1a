#include "map_resource/bubble_markers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cctype>
#include <random>
#include <string>

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;

// Defines recognition: searches for each marker in order.
std::optional<BubbleKind> FindBySearches(const std::string& name) {
  for (const BubbleKind kind : kBubbleKinds) {
    if (name.find(MarkerOf(kind)) != std::string::npos) return kind;
  }
  return std::nullopt;
}

TEST(FindBubbleKindTest, MarkerIsFoundAtTheBeginningInTheMiddleAndAtTheEnd) {
  for (const BubbleKind kind : kBubbleKinds) {
    const std::string marker(MarkerOf(kind));
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

TEST(FindBubbleKindTest, NothingAfterTheEndOfTheViewIsRead) {
  const std::string_view name = ".trafficBubble";
  EXPECT_EQ(FindBubbleKind(name.substr(0, 13)), std::nullopt);
  EXPECT_EQ(FindBubbleKind(name.substr(0, 1)), std::nullopt);
}

// Makes names full of dots, whole markers, cut markers, markers in the other case and pieces of payloads.
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
    std::string marker(kBubbleMarkers[static_cast<std::size_t>(Below(kBubbleMarkers.size()))]);
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

TEST(FindBubbleKindTest, AgreesWithASearchForEachMarkerOnGeneratedNames) {
  NameGenerator names;
  int found = 0;
  for (int i = 0; i < 40000; ++i) {
    const std::string name = names.Next();
    const auto expected = FindBySearches(name);
    ASSERT_EQ(FindBubbleKind(name), expected) << name;
    if (expected) ++found;
  }
  EXPECT_GT(found, 10000);
  EXPECT_LT(found, 30000);
}

}  // namespace
}  // namespace kavrix::test
