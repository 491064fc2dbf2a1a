#include "inspect/nearest.h"

#include <gtest/gtest.h>

namespace kavrix::test {
namespace {

using inspect::FindNearMarker;
using inspect::NearestWord;

TEST(NearestWordTest, IsTheSameButForCaseOrAFewChangesAway) {
  const std::vector<std::string> words = {"content", "direction", "mode", "id"};
  EXPECT_EQ(NearestWord("contnt", words), "content");
  EXPECT_EQ(NearestWord("Direction", words), "direction");
  EXPECT_EQ(NearestWord("dirction_", words), "direction");
  EXPECT_EQ(NearestWord("mod", words), "mode");
  EXPECT_EQ(NearestWord("ID", words), "id");
}

TEST(NearestWordTest, IsNoneWhenNoWordIsClose) {
  const std::vector<std::string> words = {"content", "direction", "mode", "id"};
  EXPECT_EQ(NearestWord("cntnt_", words), std::nullopt);
  EXPECT_EQ(NearestWord("mo", words), std::nullopt);
  EXPECT_EQ(NearestWord("if", words), std::nullopt);
  EXPECT_EQ(NearestWord("", words), std::nullopt);
  EXPECT_EQ(NearestWord("scene", {}), std::nullopt);
}

TEST(NearMarkerTest, IsTheClosestPlaceInTheName) {
  const auto near = FindNearMarker("kavrix://resource/{}.etaBuble");
  ASSERT_TRUE(near.has_value());
  EXPECT_EQ(near->kind, BubbleKind::kEta);
  EXPECT_EQ(near->bytes.begin, 20U);
  EXPECT_EQ(near->bytes.end, 29U);
  EXPECT_FALSE(near->differs_in_case_only);
}

TEST(NearMarkerTest, CaseCountsLessThanAnotherCharacter) {
  const auto near = FindNearMarker("a.nameBubbl b.TURNBUBBLE");
  ASSERT_TRUE(near.has_value());
  EXPECT_EQ(near->kind, BubbleKind::kTurn);
  EXPECT_TRUE(near->differs_in_case_only);
}

TEST(NearMarkerTest, ThreeChangesAreTooMany) {
  EXPECT_FALSE(FindNearMarker("kavrix://resource/{}.turnBub").has_value());
  EXPECT_FALSE(FindNearMarker("").has_value());
}

}  // namespace
}  // namespace kavrix::test
