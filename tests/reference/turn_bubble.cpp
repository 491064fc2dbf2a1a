#include "descriptors/turn_arrow_bubble_draw_descriptor.h"
#include "tests/reference/fields.h"
#include "tests/reference/json.h"
#include "tests/reference/kinds.h"

namespace kavrix::reference {

void TurnBubble(const Call& call, Out& out) {
  call.Log(kRoutine, "KavrixMapLayerMgr_TurnArrow", "ParseTurnBubbleResourceName",
           " resource_name:", call.name);
  auto turn = std::make_shared<TurnArrowBubbleDrawDescriptor>();
  out = turn;
  const std::string payload = BetweenPrefixAndMarker(call.name, 11);
  turn->bubble_kind = 10;
  turn->style_name = call.context.GetBubbleLayerConfigInLock().turn_style.name;
  Json::Value root;
  if (!ParseObject(payload, root)) return;  // not logged
  turn->is_force = IntOr(root, "is_force_", turn->is_force ? 1 : 0) == 1;
  turn->type = Low16(IntOr(root, "type", turn->type));
  turn->direction = Low16(IntOr(root, "direction", turn->direction));
  turn->mode_flag = IntOr(root, "mode", turn->mode_flag ? 1 : 0) == 0;
  turn->scene = IntOr(root, "scene", turn->scene);
  turn->lan = TextOr(root, "lan", turn->lan);
  turn->distance = IntOr(root, "distance", turn->distance);
}

}  // namespace kavrix::reference
