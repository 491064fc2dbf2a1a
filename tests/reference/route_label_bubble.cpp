#include "tests/reference/fields.h"
#include "tests/reference/kinds.h"

namespace kavrix::reference {

void RouteLabelBubble(const Call& call, Out& out) {
  out = std::make_shared<BubbleDrawDescriptor>();
  out->bubble_kind = 7;
  const std::vector<std::string> parts = Split(AfterPrefix(call.name), '@');
  if (parts.size() == 2) {
    const std::vector<std::string> fields = Split(parts[0], '_');
    if (fields.size() == 2) {
      out->content = fields[0];
      ReadMode(fields[1], *out);
    }
    ReadDirection(parts[1], *out);
  }

  const BubbleLayerConfigContainer config = call.context.GetBubbleLayerConfigInLock();
  const auto& style = config.route_label_style;
  out->style_scale[0] = style.Float(4);  // the second is not written
  out->style_name = style.name;
  out->style_word = style.Word(out->mode_flag ? 2 : 3);
  call.Log(kRoutine, "KavrixMapLayerMgr_RouteLabel", "ParseRouteLabelBubbleResourceName", *out);
}

}  // namespace kavrix::reference
