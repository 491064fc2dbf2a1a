// The route-explain bubble: explains a route by a main line, secondary lines and an icon.
//
//   name = prefix JSON-object ".routeExplainBubble"
//   keys : second_content (array of strings), scene, mode, uid, content, icon, lan, second_type, scene_type,
//          bubble_type, direction
//
// Irregular: "content" fills explain_content, not the base's content. Elements of "second_content" that are
// not strings are ignored. The log records have the camera's tag.

#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_transform.h"
#include "map_resource/name_codec.h"
#include "map_resource/resource_name_encoder.h"
#include "util/tagged_log.h"

namespace kavrix {

using logging::LogLevel;

namespace {

struct RouteExplainFormat : JsonFormat<RouteExplainFormat, ExplainBubbleDrawDescriptor> {
  static constexpr std::string_view kMarker = MarkerOf(BubbleKind::kRouteExplain);
  template <class Keys, class Explain>
  static void List(Keys& keys, Explain& explain) {
    keys.Texts("second_content", explain.second_content);
    keys.Integer("scene", explain.scene);
    keys.TrueWhenZero("mode", explain.mode_flag);
    keys.Text("uid", explain.uid);
    keys.Text("content", explain.explain_content);
    keys.Text("icon", explain.icon);
    keys.Text("lan", explain.lan);
    keys.Integer("second_type", explain.second_type);
    keys.Integer("scene_type", explain.scene_type);
    keys.Integer("bubble_type", explain.bubble_type);
    keys.Integer("direction", explain.direction);
  }
};

}  // namespace

void MapResourceTransform::ParseRouteExplainBubbleResourceName(const std::string& resource_name,
                                                               std::shared_ptr<BubbleDrawDescriptor>& out) {
  const auto explain = Publish<ExplainBubbleDrawDescriptor>(out);
  const std::string_view payload = RouteExplainFormat::PayloadOf(resource_name);
  if (!RouteExplainFormat::Read(payload, *explain)) {
    KAVRIX_LOG(LogTagKavrixMapLayerMgr_CameraLayer, LogLevel::kFailure, "parse json failed: " << payload);
    return;
  }
  KAVRIX_LOG(LogTagKavrixMapLayerMgr_CameraLayer, LogLevel::kRoutine, *explain);
}

std::string EncodeRouteExplainBubbleResourceName(const ExplainBubbleDrawDescriptor& explain) {
  return EncodeName<RouteExplainFormat>(explain);
}

constexpr BubbleKindInfo kRouteExplainBubbleInfo = MakeInfo<RouteExplainFormat>(
    BubbleKind::kRouteExplain, std::nullopt, PayloadWay::kPrefixAndMarkerStripped, "JSON object");

}  // namespace kavrix
