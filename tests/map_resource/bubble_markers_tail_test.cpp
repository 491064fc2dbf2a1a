#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "map_resource/bubble_markers.h"

namespace kavrix::test {
namespace {

std::optional<BubbleKind> FindBySearches(const std::string& name) {
  for (const BubbleKind kind : kBubbleKinds) {
    if (name.find(MarkerOf(kind)) != std::string::npos) return kind;
  }
  return std::nullopt;
}

TEST(BubbleMarkersTailTest, MarkerIsFoundAfterAnyNumberOfLettersOfItsTail) {
  for (const std::string letter : {"B", "u", "b", "l", "e", "x", "."}) {
    std::string name;
    for (int length = 0; length < 30; ++length, name += letter) {
      EXPECT_EQ(FindBubbleKind(name + ".etaBubble"), BubbleKind::kEta) << name;
      EXPECT_EQ(FindBubbleKind("B" + name + ".etaBubble" + name), BubbleKind::kEta) << name;
      EXPECT_EQ(FindBubbleKind("Bubble" + name + ".etaBubbx" + name), std::nullopt) << name;
    }
  }
}

TEST(BubbleMarkersTailTest, NothingAfterTheEndOfTheNameIsRead) {
  for (std::string before = "B"; before.size() < 10; before += 'x') {
    const std::string whole = before + ".etaBubble";
    EXPECT_EQ(FindBubbleKind(whole), BubbleKind::kEta);
    for (std::size_t length = 0; length < whole.size(); ++length) {
      EXPECT_EQ(FindBubbleKind(std::string_view(whole).substr(0, length)), std::nullopt) << whole;
      const std::vector<char> bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
      EXPECT_EQ(FindBubbleKind({bytes.data(), length}), std::nullopt) << whole;  // read under the sanitizer
    }
  }
}

TEST(BubbleMarkersTailTest, NamesOfTheTailsLettersAreReadAsTheSearchesReadThem) {
  std::mt19937 random(6);
  const auto below = [&random](std::size_t limit) { return random() % limit; };
  int found = 0;
  for (int i = 0; i < 40000; ++i) {
    std::string name;
    for (std::size_t pieces = below(6); pieces > 0; --pieces) {
      for (std::size_t letters = below(9); letters > 0; --letters) name += "Bubble.t"[below(8)];
      const std::string_view marker = kBubbleMarkers[below(kBubbleMarkers.size())];
      name += marker.substr(below(5) / 4, marker.size() - below(4) / 2);
    }
    const auto expected = FindBySearches(name);
    ASSERT_EQ(FindBubbleKind(name), expected) << name;
    if (expected) ++found;
  }
  EXPECT_GT(found, 10000);
  EXPECT_LT(found, 38000);
}

}  // namespace
}  // namespace kavrix::test
