#include "descriptors/route_accident_bubble_draw_descriptor.h"
#include "tests/reference/json.h"
#include "tests/reference/kinds.h"
#include "tests/reference/self_initialised.h"

namespace kavrix::reference {

void RouteAccidentBubble(const Call& call, Out& out) {
  auto accident = std::make_shared<RouteAccidentBubbleDrawDescriptor>();
  Json::Value root;
  if (ParseObject(BetweenBraces(call.name), root)) {
    ReadSharedKeys(root, *accident);
    accident->accident_id = TextOr(root, "accident_id", accident->accident_id);
    accident->severity = IntOr(root, "severity", accident->severity);
  }
  out = accident;
}

}  // namespace kavrix::reference
