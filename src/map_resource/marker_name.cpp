// Marker names: map markers, which are no bubbles and have their own entry point.
//
//   name = prefix JSON-object ".marker"
//   keys : lan, mode, scene, direction, marker_type, name, resource_id, is_main_map
//
// Irregular: a payload that is not a JSON object leaves `out` unchanged and is logged, with the whole name,
// under the traffic tag; success is not logged. "is_main_map" is true when not 0. The content is the image
// key: the prefix, the marker type's name in lower case, "_" and the marker's name in its own case.

#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_manager.h"
#include "map_resource/map_resource_transform.h"
#include "map_resource/name_codec.h"
#include "map_resource/resource_name_encoder.h"
#include "util/string_util.h"
#include "util/tagged_log.h"

namespace kavrix {

using logging::LogLevel;

namespace {

constexpr std::uint16_t kKindCode = 21;

struct MarkerFormat : JsonFormat<MarkerFormat, MarkerDrawDescriptor> {
  static constexpr std::string_view kMarker = kMarkerNameTail;
  template <class Keys, class Marker>
  static void List(Keys& keys, Marker& marker) {
    keys.Text("lan", marker.lan);
    keys.TrueWhenZero("mode", marker.mode_flag);
    keys.Integer("scene", marker.scene);
    keys.Integer("direction", marker.direction);
    keys.Integer("marker_type", marker.marker_type);
    keys.Text("name", marker.name);
    keys.Integer("resource_id", marker.resource_id);
    keys.TrueWhenNonZero("is_main_map", marker.is_main_map);
  }
};

// Fills the members that the name does not carry.
void Complete(MarkerDrawDescriptor& marker) {
  marker.bubble_kind = kKindCode;
  marker.is_force = true;
  marker.content = MapResourceManager::kavrix_resource_prefix +
                   ToLowerASCII(MarkerTypeName(MarkerType(marker.marker_type))) + "_" + marker.name;
}

}  // namespace

void MapResourceTransform::GetMarkerDrawDescriptor(const std::string& resource_name,
                                                   std::shared_ptr<BubbleDrawDescriptor>& out) {
  const auto marker = std::make_shared<MarkerDrawDescriptor>();
  const auto publish = [&] { out = marker; };
  if (!MarkerFormat::Read(MarkerFormat::PayloadOf(resource_name), *marker, Decoding(), publish)) {
    KAVRIX_LOG(LogTagKavrixMapLayerMgr_BubbleTraffic, LogLevel::kFailure,
               "parse json failed: " << resource_name);
    return;
  }
  Complete(*marker);
}

void MapResourceTransform::ParseMarkerResourceName(const Json::Value& value,
                                                   std::shared_ptr<BubbleDrawDescriptor>& out) {
  const auto marker = Publish<MarkerDrawDescriptor>(out);
  const PayloadNodes payload(value);
  JsonKeyReader keys(payload.nodes());
  MarkerFormat::List(keys, *marker);
  Complete(*marker);
}

std::string EncodeMarkerResourceName(const MarkerDrawDescriptor& marker) {
  return EncodeName<MarkerFormat>(marker);
}

constexpr BubbleKindInfo kMarkerNameInfo = {kMarkerNameTail, EntryPoint::kMarker,
                                            "marker_name",   "MarkerDrawDescriptor",
                                            kKindCode,       PayloadWay::kPrefixAndMarkerStripped,
                                            "JSON object",   kCodec<MarkerFormat>};

}  // namespace kavrix
