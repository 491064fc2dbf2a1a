// The marker bubble: a text bubble at a map marker. Marker names are another thing, with their own entry
// point (marker_name.cpp).
//
//   name = prefix JSON-object ".markerBubble"
//   keys : scene, mode, direction, content
//
// Irregular: the style comes from the transform, not from the context. A failure is logged under the traffic
// tag; success is not logged.

#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_transform.h"
#include "map_resource/name_codec.h"
#include "map_resource/resource_name_encoder.h"
#include "util/tagged_log.h"

namespace kavrix {

using logging::LogLevel;

namespace {

constexpr std::uint16_t kKindCode = 0;

struct MarkerBubbleFormat : JsonFormat<MarkerBubbleFormat, BubbleDrawDescriptor> {
  static constexpr std::string_view kMarker = MarkerOf(BubbleKind::kMarker);
  template <class Keys, class Descriptor>
  static void List(Keys& keys, Descriptor& bubble) {
    keys.Integer("scene", bubble.scene);
    keys.TrueWhenZero("mode", bubble.mode_flag);
    keys.Integer("direction", bubble.direction);
    keys.Text("content", bubble.content);
  }
};

}  // namespace

void MapResourceTransform::ParseMarkerBubbleResourceName(const std::string& resource_name,
                                                         std::shared_ptr<BubbleDrawDescriptor>& out) {
  const auto bubble = Publish<BubbleDrawDescriptor>(out);
  bubble->bubble_kind = kKindCode;
  const std::string_view payload = MarkerBubbleFormat::PayloadOf(resource_name);
  if (!MarkerBubbleFormat::Read(payload, *bubble)) {
    KAVRIX_LOG(LogTagKavrixMapLayerMgr_BubbleTraffic, LogLevel::kFailure, "parse json failed: " << payload);
    return;
  }
  ApplyCommonStyle(marker_bubble_config_, *bubble);
}

std::string EncodeMarkerBubbleResourceName(const BubbleDrawDescriptor& bubble) {
  return EncodeName<MarkerBubbleFormat>(bubble);
}

constexpr BubbleKindInfo kMarkerBubbleInfo = MakeInfo<MarkerBubbleFormat>(
    BubbleKind::kMarker, kKindCode, PayloadWay::kPrefixAndMarkerStripped, "JSON object");

}  // namespace kavrix
