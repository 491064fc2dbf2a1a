#include "tests/reference/fields.h"
#include "tests/reference/json.h"
#include "tests/reference/kinds.h"
#include "tests/reference/style.h"

namespace kavrix::reference {

void MarkerBubble(const Call& call, Out& out) {
  out = std::make_shared<BubbleDrawDescriptor>();
  out->bubble_kind = 0;
  const std::string payload = BetweenPrefixAndMarker(call.name, 13);
  Json::Value root;
  if (!ParseObject(payload, root)) {
    call.Log(kFailure, "KavrixMapLayerMgr_BubbleTraffic", "ParseMarkerBubbleResourceName",
             "parse json failed: ", payload);
    return;
  }
  out->scene = IntOr(root, "scene", out->scene);
  out->mode_flag = IntOr(root, "mode", out->mode_flag ? 1 : 0) == 0;
  out->direction = Low16(IntOr(root, "direction", out->direction));
  out->content = TextOr(root, "content", out->content);
  CommonStyle(call.marker_bubble_config, *out);
}

}  // namespace kavrix::reference
