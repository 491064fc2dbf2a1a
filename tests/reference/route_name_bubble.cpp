#include "tests/reference/fields.h"
#include "tests/reference/kinds.h"
#include "tests/reference/style.h"

namespace kavrix::reference {

void RouteNameBubble(const Call& call, Out& out) {
  out = std::make_shared<BubbleDrawDescriptor>();
  out->bubble_kind = 0;
  const std::vector<std::string> parts = Split(AfterPrefix(call.name), '@');
  if (parts.size() == 2) {
    const std::vector<std::string> fields = Split(parts[0], '_');
    if (fields.size() == 3) {
      out->content = fields[0];
      ReadMode(fields[1], *out);
      ToInt(fields[2], out->scene);
    }
    ReadDirection(parts[1], *out);
  }

  const BubbleLayerConfigContainer config = call.context.GetBubbleLayerConfigInLock();
  CommonStyle(out->scene == 0 ? config.route_name_style : config.route_name_scene_style, *out);
  call.Log(kRoutine, "KavrixMapLayerMgr_BubbleName", "ParseRouteNameBubbleResourceName", *out);
}

}  // namespace kavrix::reference
