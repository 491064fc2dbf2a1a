// The force poll bubble: always drawn. Twin of the force dot.
//
//   name = prefix JSON-object ".ForcePollBubble"
//   keys : mode, type
//
// Irregular: the payload of every good name is logged, at the level of failures. Content and force flag are
// set only once the payload has parsed.

#include "map_resource/bubble_kinds.h"
#include "map_resource/force_bubble.h"
#include "map_resource/map_resource_transform.h"
#include "util/key_reader.h"
#include "util/tagged_log.h"

namespace kavrix {

using logging::LogLevel;

namespace {

constexpr std::uint16_t kKindCode = 28;

}  // namespace

void MapResourceTransform::ParseForcePollBubbleResourceName(const std::string& resource_name,
                                                            std::shared_ptr<BubbleDrawDescriptor>& out) {
  const auto bubble = Publish<BubbleDrawDescriptor>(out);
  bubble->bubble_kind = kKindCode;
  const std::string_view payload = StripPrefixAndMarker(resource_name, MarkerOf(BubbleKind::kForcePoll));
  Json::Value root;
  if (!JsonUtil::ParseObject(payload, root)) {
    KAVRIX_LOG(LogTagKavrixMapLayerMgr_BubbleTraffic, LogLevel::kFailure, "parse json failed: " << payload);
    return;
  }
  KAVRIX_LOG(LogTagKavrixMapLayerMgr_BubbleTraffic, LogLevel::kFailure, payload);
  FillForceBubble(root, "ForcePoll", *bubble);
}

const BubbleKindInfo kForcePollBubbleInfo = {"BubbleDrawDescriptor", kKindCode,
                                             PayloadWay::kPrefixAndMarkerStripped, "JSON object",
                                             [](KeyLister& keys) {
                                               BubbleDrawDescriptor bubble;
                                               ForceBubbleKeys(keys, bubble);
                                             }};

}  // namespace kavrix
