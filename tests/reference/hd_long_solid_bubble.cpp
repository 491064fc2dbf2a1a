#include "descriptors/hd_long_solid_bubble_draw_descriptor.h"
#include "tests/reference/fields.h"
#include "tests/reference/kinds.h"
#include "tests/reference/style.h"

namespace kavrix::reference {

void HdLongSolidBubble(const Call& call, Out& out) {
  out = std::make_shared<HDLongSolidBubbleDrawDescriptor>();
  out->bubble_kind = 12;
  const BubbleLayerConfigContainer config = call.context.GetBubbleLayerConfigInLock();
  CommonStyle(config.hd_long_solid_style, *out);
  const std::vector<std::string> parts = Split(AfterPrefix(call.name), '@');
  if (parts.size() == 2) {
    const std::vector<std::string> fields = Split(parts[0], '_');
    if (fields.size() >= 2) {
      out->content = fields[0];
      ReadMode(fields[1], *out);
      if (fields.size() >= 3) out->is_force = true;
    }
    ReadDirection(parts[1], *out);
  }
  call.Log(kRoutine, "KavrixMapLayerMgr_LongSolid", "ParseHdLongSolidBubbleResourceName", *out);
}

}  // namespace kavrix::reference
