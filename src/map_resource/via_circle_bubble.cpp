// The via-circle bubble: the numbered circle at an intermediate stop.
//
//   name = prefix JSON-object ".viaCircleBubble"
//   keys : scene, lan, mode, direction, route_id, index, is_selected, is_reached, is_main_map, resource_id
//
// Irregular: its three flags are true when not 0; "is_force_" and the like require 1. A failure is logged
// under the traffic tag; success is not logged.

#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_transform.h"
#include "map_resource/name_codec.h"
#include "map_resource/resource_name_encoder.h"
#include "util/tagged_log.h"

namespace kavrix {

using logging::LogLevel;

namespace {

constexpr std::uint16_t kKindCode = 20;

struct ViaCircleFormat : JsonFormat<ViaCircleFormat, ViaPointDrawDescriptor> {
  static constexpr std::string_view kMarker = MarkerOf(BubbleKind::kViaCircle);
  template <class Keys, class Via>
  static void List(Keys& keys, Via& via) {
    keys.Integer("scene", via.scene);
    keys.Text("lan", via.lan);
    keys.TrueWhenZero("mode", via.mode_flag);
    keys.Integer("direction", via.direction);
    keys.Text("route_id", via.route_id);
    keys.Integer("index", via.index);
    keys.TrueWhenNonZero("is_selected", via.is_selected);
    keys.TrueWhenNonZero("is_reached", via.is_reached);
    keys.TrueWhenNonZero("is_main_map", via.is_main_map);
    keys.Integer("resource_id", via.resource_id);
  }
};

}  // namespace

void MapResourceTransform::ParseViaCircleBubbleResourceName(const std::string& resource_name,
                                                            std::shared_ptr<BubbleDrawDescriptor>& out) {
  const auto via = Publish<ViaPointDrawDescriptor>(out);
  via->bubble_kind = kKindCode;
  const std::string_view payload = ViaCircleFormat::PayloadOf(resource_name);
  if (!ViaCircleFormat::Read(payload, *via)) {
    KAVRIX_LOG(LogTagKavrixMapLayerMgr_BubbleTraffic, LogLevel::kFailure, "parse json failed: " << payload);
  }
}

std::string EncodeViaCircleBubbleResourceName(const ViaPointDrawDescriptor& via) {
  return EncodeName<ViaCircleFormat>(via);
}

constexpr BubbleKindInfo kViaCircleBubbleInfo = MakeInfo<ViaCircleFormat>(
    BubbleKind::kViaCircle, kKindCode, PayloadWay::kPrefixAndMarkerStripped, "JSON object");

}  // namespace kavrix
