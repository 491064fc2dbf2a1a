#include "descriptors/via_point_draw_descriptor.h"
#include "tests/reference/fields.h"
#include "tests/reference/json.h"
#include "tests/reference/kinds.h"

namespace kavrix::reference {

void ViaCircleBubble(const Call& call, Out& out) {
  auto via = std::make_shared<ViaPointDrawDescriptor>();
  out = via;
  via->bubble_kind = 20;
  const std::string payload = BetweenPrefixAndMarker(call.name, 16);
  Json::Value root;
  if (!ParseObject(payload, root)) {
    call.Log(kFailure, "KavrixMapLayerMgr_BubbleTraffic", "ParseViaCircleBubbleResourceName",
             "parse json failed: ", payload);
    return;
  }
  via->scene = IntOr(root, "scene", via->scene);
  via->lan = TextOr(root, "lan", via->lan);
  via->mode_flag = IntOr(root, "mode", via->mode_flag ? 1 : 0) == 0;
  via->direction = Low16(IntOr(root, "direction", via->direction));
  via->route_id = TextOr(root, "route_id", via->route_id);
  via->index = IntOr(root, "index", via->index);
  via->is_selected = IntOr(root, "is_selected", via->is_selected ? 1 : 0) != 0;
  via->is_reached = IntOr(root, "is_reached", via->is_reached ? 1 : 0) != 0;
  via->is_main_map = IntOr(root, "is_main_map", via->is_main_map ? 1 : 0) != 0;
  via->resource_id = IntOr(root, "resource_id", via->resource_id);
}

}  // namespace kavrix::reference
