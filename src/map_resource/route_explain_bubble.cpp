// The route-explain bubble: a text that explains a route, with secondary lines and an icon.
//
//   name = prefix JSON-object ".routeExplainBubble"
//   keys : second_content (array of texts), scene, mode, uid, content, icon, lan, second_type, scene_type,
//          bubble_type, direction
//
// Irregular: "content" fills explain_content, not the base's content. Elements of "second_content" that are
// no texts are passed over. The records carry the camera's tag.

#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_transform.h"
#include "util/key_reader.h"
#include "util/tagged_log.h"

namespace kavrix {

using logging::LogLevel;

namespace {

template <class Keys, class Explain>
void RouteExplainKeys(Keys& keys, Explain& explain) {
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

}  // namespace

void MapResourceTransform::ParseRouteExplainBubbleResourceName(const std::string& resource_name,
                                                               std::shared_ptr<BubbleDrawDescriptor>& out) {
  const auto explain = Publish<ExplainBubbleDrawDescriptor>(out);
  const std::string_view payload = StripPrefixAndMarker(resource_name, MarkerOf(BubbleKind::kRouteExplain));
  Json::Value root;
  if (!JsonUtil::ParseObject(payload, root)) {
    KAVRIX_LOG(LogTagKavrixMapLayerMgr_CameraLayer, LogLevel::kFailure, "parse json failed: " << payload);
    return;
  }
  JsonKeyReader keys(root);
  RouteExplainKeys(keys, *explain);
  KAVRIX_LOG(LogTagKavrixMapLayerMgr_CameraLayer, LogLevel::kRoutine, *explain);
}

const BubbleKindInfo kRouteExplainBubbleInfo = {"ExplainBubbleDrawDescriptor", std::nullopt,
                                                PayloadWay::kPrefixAndMarkerStripped, "JSON object",
                                                [](KeyLister& keys) {
                                                  ExplainBubbleDrawDescriptor explain;
                                                  RouteExplainKeys(keys, explain);
                                                }};

}  // namespace kavrix
