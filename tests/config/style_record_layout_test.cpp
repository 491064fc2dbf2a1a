// Tests the members of the style records, their types and their order.

#include <gtest/gtest.h>

#include "config/bubble_layer_config_container.h"
#include "config/marker_bubble_config.h"
#include "tests/support/member_layout.h"

namespace kavrix::test {
namespace {

template <std::size_t Values>
void ExpectRecord() {
  SCOPED_TRACE(Values);
  using R = BubbleStyleRecord<Values>;
  static_assert(!std::is_polymorphic_v<R> && R::kValueCount == Values);
  ExpectMembers(R(), 0, Is<std::uint64_t>(&R::reserved_1), Is<std::string>(&R::name),
                Is<std::uint64_t>(&R::reserved_2), Is<std::vector<std::uint32_t>>(&R::items),
                Is<std::array<std::uint32_t, Values>>(&R::values));
}

TEST(StyleRecordLayoutTest, RecordOfEveryLength) {
  ExpectRecord<2>();
  ExpectRecord<4>();
  ExpectRecord<8>();
  ExpectRecord<11>();
  ExpectRecord<12>();
  ExpectRecord<14>();
  ExpectRecord<18>();
}

TEST(StyleRecordLayoutTest, MarkerBubbleConfigIsARecordOfFourValues) {
  static_assert(std::is_base_of_v<BubbleStyleRecord<4>, MarkerBubbleConfig>);
  EXPECT_EQ(sizeof(MarkerBubbleConfig), sizeof(BubbleStyleRecord<4>));
}

TEST(StyleRecordLayoutTest, ContainerHoldsTheRecordsInTheirOrder) {
  using C = BubbleLayerConfigContainer;
  static_assert(!std::is_polymorphic_v<C>);
  ExpectMembers(
      C(), 0, Is<BubbleStyleRecord<4>>(&C::route_name_style), Is<BubbleStyleRecord<12>>(&C::traffic_style),
      Is<BubbleStyleRecord<8>>(&C::companion_style), Is<BubbleStyleRecord<18>>(&C::camera_style),
      Is<BubbleStyleRecord<12>>(&C::eta_style), Is<BubbleStyleRecord<12>>(&C::eta_scene_style),
      Is<BubbleStyleRecord<4>>(&C::route_label_style), Is<BubbleStyleRecord<18>>(&C::camera_scene_style),
      Is<BubbleStyleRecord<14>>(&C::traffic_nav_style), Is<BubbleStyleRecord<4>>(&C::route_name_scene_style),
      Is<BubbleStyleRecord<2>>(&C::turn_style), Is<BubbleStyleRecord<18>>(&C::unread_style_12),
      Is<BubbleStyleRecord<2>>(&C::unread_style_13), Is<BubbleStyleRecord<4>>(&C::hd_long_solid_style),
      Is<BubbleStyleRecord<2>>(&C::unread_style_15), Is<BubbleStyleRecord<4>>(&C::indoor_entries_style),
      Is<BubbleStyleRecord<4>>(&C::light_wait_style), Is<BubbleStyleRecord<2>>(&C::unread_style_18),
      Is<BubbleStyleRecord<2>>(&C::unread_style_19), Is<BubbleStyleRecord<2>>(&C::unread_style_20),
      Is<BubbleStyleRecord<11>>(&C::traffic_scene_style));
}

}  // namespace
}  // namespace kavrix::test
