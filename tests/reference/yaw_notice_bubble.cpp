#include "descriptors/yaw_notice_bubble_draw_descriptor.h"
#include "tests/reference/json.h"
#include "tests/reference/kinds.h"
#include "tests/reference/self_initialised.h"

namespace kavrix::reference {

void YawNoticeBubble(const Call& call, Out& out) {
  auto notice = std::make_shared<YawNoticeBubbleDrawDescriptor>();
  Json::Value root;
  if (ParseObject(BetweenBraces(call.name), root)) {
    ReadSharedKeys(root, *notice);
    notice->reason = IntOr(root, "reason", notice->reason);
  }
  out = notice;
}

}  // namespace kavrix::reference
