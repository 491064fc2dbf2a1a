// The force poll bubble: always drawn. Twin of the force dot.
//
//   name = prefix JSON-object ".ForcePollBubble"
//   keys : mode, type
//
// Irregular: the payload of every good name is logged, at the level of failures. Content and force flag are
// set only when the payload parses.

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

struct ForcePollFormat : ForceBubbleFormat<ForcePollFormat> {
  static constexpr std::string_view kMarker = MarkerOf(BubbleKind::kForcePoll);
};

}  // namespace

void MapResourceTransform::ParseForcePollBubbleResourceName(const std::string& resource_name,
                                                            std::shared_ptr<BubbleDrawDescriptor>& out) {
  const auto bubble = Publish<BubbleDrawDescriptor>(out);
  bubble->bubble_kind = kKindCode;
  const std::string_view payload = ForcePollFormat::PayloadOf(resource_name);
  const char* const function = __func__;
  const auto log_payload = [&] {
    KAVRIX_LOG_IN(function, LogTagKavrixMapLayerMgr_BubbleTraffic, LogLevel::kFailure, payload);
  };
  if (!ForcePollFormat::Read(payload, *bubble, Decoding(), log_payload)) {
    KAVRIX_LOG(LogTagKavrixMapLayerMgr_BubbleTraffic, LogLevel::kFailure, "parse json failed: " << payload);
    return;
  }
  bubble->content = "ForcePoll";
  bubble->is_force = true;
}

std::string EncodeForcePollBubbleResourceName(const BubbleDrawDescriptor& bubble) {
  return EncodeName<ForcePollFormat>(bubble);
}

constexpr BubbleKindInfo kForcePollBubbleInfo = MakeInfo<ForcePollFormat>(
    BubbleKind::kForcePoll, kKindCode, PayloadWay::kPrefixAndMarkerStripped, "JSON object");

}  // namespace kavrix
