#include "descriptors/hd_lane_change_bubble_draw_descriptor.h"
#include "tests/reference/json.h"
#include "tests/reference/kinds.h"
#include "tests/reference/self_initialised.h"

namespace kavrix::reference {

void LaneChangeBubble(const Call& call, Out& out) {
  auto change = std::make_shared<HDLaneChangeBubbleDrawDescriptor>();
  Json::Value root;
  if (ParseObject(BetweenBraces(call.name), root)) {
    ReadSharedKeys(root, *change);
    change->target_lane = IntOr(root, "target_lane", change->target_lane);
    change->distance = IntOr(root, "distance", change->distance);
  }
  out = change;
}

}  // namespace kavrix::reference
