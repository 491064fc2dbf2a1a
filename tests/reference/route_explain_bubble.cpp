#include "descriptors/explain_bubble_draw_descriptor.h"
#include "tests/reference/fields.h"
#include "tests/reference/json.h"
#include "tests/reference/kinds.h"

namespace kavrix::reference {

void RouteExplainBubble(const Call& call, Out& out) {
  const char* const tag = "KavrixMapLayerMgr_CameraLayer";
  const char* const function = "ParseRouteExplainBubbleResourceName";
  auto explain = std::make_shared<ExplainBubbleDrawDescriptor>();
  out = explain;
  const std::string payload = BetweenPrefixAndMarker(call.name, 19);
  Json::Value root;
  if (!ParseObject(payload, root)) {
    call.Log(kFailure, tag, function, "parse json failed: ", payload);
    return;
  }
  if (root.isMember("second_content") && root["second_content"].isArray()) {
    for (const Json::Value& element : root["second_content"]) {
      if (element.isString()) explain->second_content.push_back(element.asString());
    }
  }
  explain->scene = IntOr(root, "scene", explain->scene);
  explain->mode_flag = IntOr(root, "mode", explain->mode_flag ? 1 : 0) == 0;
  explain->uid = TextOr(root, "uid", explain->uid);
  explain->explain_content = TextOr(root, "content", explain->explain_content);
  explain->icon = TextOr(root, "icon", explain->icon);
  explain->lan = TextOr(root, "lan", explain->lan);
  explain->second_type = IntOr(root, "second_type", explain->second_type);
  explain->scene_type = IntOr(root, "scene_type", explain->scene_type);
  explain->bubble_type = IntOr(root, "bubble_type", explain->bubble_type);
  explain->direction = Low16(IntOr(root, "direction", explain->direction));
  call.Log(kRoutine, tag, function, *explain);
}

}  // namespace kavrix::reference
