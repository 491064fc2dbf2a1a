// The force dot bubble: always drawn. Twin of the force poll.
//
//   name = prefix JSON-object ".ForceDotBubble"
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

constexpr std::uint16_t kKindCode = 27;

struct ForceDotFormat : ForceBubbleFormat<ForceDotFormat> {
  static constexpr std::string_view kMarker = MarkerOf(BubbleKind::kForceDot);
};

}  // namespace

void MapResourceTransform::ParseForceDotBubbleResourceName(const std::string& resource_name,
                                                           std::shared_ptr<BubbleDrawDescriptor>& out) {
  const auto bubble = Publish<BubbleDrawDescriptor>(out);
  bubble->bubble_kind = kKindCode;
  const std::string_view payload = ForceDotFormat::PayloadOf(resource_name);
  const char* const function = __func__;
  const auto log_payload = [&] {
    KAVRIX_LOG_IN(function, LogTagKavrixMapLayerMgr_BubbleTraffic, LogLevel::kFailure, payload);
  };
  if (!ForceDotFormat::Read(payload, *bubble, Decoding(), log_payload)) {
    KAVRIX_LOG(LogTagKavrixMapLayerMgr_BubbleTraffic, LogLevel::kFailure, "parse json failed: " << payload);
    return;
  }
  bubble->content = "ForceDot";
  bubble->is_force = true;
}

std::string EncodeForceDotBubbleResourceName(const BubbleDrawDescriptor& bubble) {
  return EncodeName<ForceDotFormat>(bubble);
}

constexpr BubbleKindInfo kForceDotBubbleInfo = MakeInfo<ForceDotFormat>(
    BubbleKind::kForceDot, kKindCode, PayloadWay::kPrefixAndMarkerStripped, "JSON object");

}  // namespace kavrix
