#include "descriptors/light_wait_bubble_draw_descriptor.h"
#include "tests/reference/fields.h"
#include "tests/reference/kinds.h"
#include "tests/reference/style.h"

namespace kavrix::reference {

void LightWaitBubble(const Call& call, Out& out) {
  out = std::make_shared<LightWaitBubbleDrawDescriptor>();
  out->bubble_kind = 14;
  const std::vector<std::string> parts = Split(AfterPrefix(call.name), '@');
  if (parts.size() == 2) {
    const std::vector<std::string> fields = Split(parts[0], '_');
    if (fields.size() == 4) {
      out->content = fields[0];
      ReadMode(fields[1], *out);
      ToInt(fields[2], out->scene);
      out->is_force = fields[3] == "1";
    }
    ReadDirection(parts[1], *out);
  }

  const BubbleLayerConfigContainer config = call.context.GetBubbleLayerConfigInLock();
  CommonStyle(config.light_wait_style, *out);
  call.Log(kRoutine, "MapLayerMgr_LightWait", "ParseLightWaitBubbleResourceName", *out);
}

}  // namespace kavrix::reference
