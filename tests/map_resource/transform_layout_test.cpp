// Tests the members of the transform, their types and their order.

#include <gtest/gtest.h>

#include "map_resource/map_resource_transform.h"
#include "tests/support/member_layout.h"

namespace kavrix::test {
namespace {

// Names private members: access is not checked where a template is instantiated explicitly.
template <auto Context, auto MarkerBubbleConfig>
struct PrivateMembers {
  friend void ExpectTransformMembers(const MapResourceTransform& transform) {
    using C = std::shared_ptr<KavrixContext>;
    ExpectMembers(transform, 0, Is<C>(Context), Is<kavrix::MarkerBubbleConfig>(MarkerBubbleConfig));
  }
};
template struct PrivateMembers<&MapResourceTransform::context_, &MapResourceTransform::marker_bubble_config_>;
void ExpectTransformMembers(const MapResourceTransform& transform);

TEST(TransformLayoutTest, HoldsTheContextAndThenTheMarkerBubblesConfiguration) {
  static_assert(!std::is_polymorphic_v<MapResourceTransform>);
  ExpectTransformMembers(MapResourceTransform(std::make_shared<KavrixContext>("")));
}

}  // namespace
}  // namespace kavrix::test
