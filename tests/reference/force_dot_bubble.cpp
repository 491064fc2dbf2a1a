#include "tests/reference/fields.h"
#include "tests/reference/json.h"
#include "tests/reference/kinds.h"

namespace kavrix::reference {

void ForceDotBubble(const Call& call, Out& out) {
  const char* const tag = "KavrixMapLayerMgr_BubbleTraffic";
  const char* const function = "ParseForceDotBubbleResourceName";
  out = std::make_shared<BubbleDrawDescriptor>();
  out->bubble_kind = 27;
  const std::string payload = BetweenPrefixAndMarker(call.name, 15);
  Json::Value root;
  if (!ParseObject(payload, root)) {
    call.Log(kFailure, tag, function, "parse json failed: ", payload);
    return;
  }
  call.Log(kFailure, tag, function, payload);
  out->mode_flag = IntOr(root, "mode", out->mode_flag ? 1 : 0) == 0;
  out->type = Low16(IntOr(root, "type", out->type));
  out->content = "ForceDot";
  out->is_force = true;
}

}  // namespace kavrix::reference
