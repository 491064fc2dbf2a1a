#include "tests/reference/fields.h"
#include "tests/reference/json.h"
#include "tests/reference/kinds.h"

namespace kavrix::reference {

void UndergroundParkBubble(const Call& call, Out& out) {
  const char* const tag = "KavrixMapLayerMgr_BubbleTraffic";
  const char* const function = "ParseUndergroundParkBubbleResourceName";
  out = std::make_shared<BubbleDrawDescriptor>();
  out->bubble_kind = 25;
  const std::string payload = BetweenPrefixAndMarker(call.name, 22);
  Json::Value root;
  if (!ParseObject(payload, root)) {
    call.Log(kFailure, tag, function, "parse json failed: ", payload);
    return;
  }
  call.Log(kFailure, tag, function, payload);
  out->lan = TextOr(root, "lan", out->lan);
  out->mode_flag = IntOr(root, "mode", out->mode_flag ? 1 : 0) == 0;
  out->direction = Low16(IntOr(root, "direction", out->direction));
  out->content = TextOr(root, "name", out->content);
}

}  // namespace kavrix::reference
