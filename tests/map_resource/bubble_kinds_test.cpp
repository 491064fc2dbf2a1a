#include "map_resource/bubble_kinds.h"

#include <gtest/gtest.h>
#include <json/value.h>

namespace kavrix::test {
namespace {

TEST(BubbleKindsTest, InfoOfAKindEncodesNamesOfThatKind) {
  for (std::size_t i = 0; i < kBubbleMarkers.size(); ++i) {
    const auto kind = static_cast<BubbleKind>(i);
    const std::string name = InfoOf(kind).codec.encode_fields(Json::objectValue);
    EXPECT_EQ(name.substr(name.rfind('.')), MarkerOf(kind)) << name;
  }
}

}  // namespace
}  // namespace kavrix::test
