#include "descriptors/safe_warning_bubble_draw_descriptor.h"
#include "tests/reference/fields.h"
#include "tests/reference/json.h"
#include "tests/reference/kinds.h"
#include "tests/reference/self_initialised.h"

namespace kavrix::reference {

void SafeWarningBubble(const Call& call, Out& out) {
  const std::string payload = BetweenPrefixAndMarker(call.name, 18);
  const std::vector<std::string> parts = Split(payload, '@');
  if (parts.size() != 2) {
    call.Log(kFailure, "KavrixMapLayerMgr_BubbleTraffic", "ParseSafeWarningResourceName",
             "parse resource_name failed: ", payload);
    return;
  }
  auto warning = std::make_shared<SafeWarningBubbleDrawDescriptor>();
  Json::Value root;
  if (ParseObject(parts[0], root)) {
    ReadSharedKeys(root, *warning);
    warning->category = IntOr(root, "category", warning->category);
    warning->distance = IntOr(root, "distance", warning->distance);
  }
  int direction = 0;
  if (ToInt(parts[1], direction)) warning->direction = Low16(direction);
  out = warning;
}

}  // namespace kavrix::reference
