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
#include "map_resource/name_codec.h"
#include "map_resource/resource_name_encoder.h"
#include "util/tagged_log.h"

namespace kavrix {

using logging::LogLevel;

namespace {

constexpr std::uint16_t kKindCode = 28;

struct ForcePollNames : ForceBubbleNames<ForcePollNames> {
  static constexpr std::string_view kMarker = MarkerOf(BubbleKind::kForcePoll);
};

}  // namespace

void MapResourceTransform::ParseForcePollBubbleResourceName(const std::string& resource_name,
                                                            std::shared_ptr<BubbleDrawDescriptor>& out) {
  const auto bubble = Publish<BubbleDrawDescriptor>(out);
  bubble->bubble_kind = kKindCode;
  const std::string_view payload = StripPrefixAndMarker(resource_name, ForcePollNames::kMarker);
  Json::Value root;
  if (!JsonUtil::ParseObject(payload, root)) {
    KAVRIX_LOG(LogTagKavrixMapLayerMgr_BubbleTraffic, LogLevel::kFailure, "parse json failed: " << payload);
    return;
  }
  KAVRIX_LOG(LogTagKavrixMapLayerMgr_BubbleTraffic, LogLevel::kFailure, payload);
  JsonKeyReader keys(root);
  ForcePollNames::List(keys, *bubble);
  bubble->content = "ForcePoll";
  bubble->is_force = true;
}

std::string EncodeForcePollBubbleResourceName(const BubbleDrawDescriptor& bubble) {
  return EncodeName<ForcePollNames>(bubble);
}

const BubbleKindInfo kForcePollBubbleInfo = {"BubbleDrawDescriptor", kKindCode,
                                             PayloadWay::kPrefixAndMarkerStripped, "JSON object",
                                             kCodec<ForcePollNames>};

}  // namespace kavrix
