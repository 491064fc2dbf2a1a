#include "descriptors/camera_draw_descriptor.h"
#include "tests/reference/fields.h"
#include "tests/reference/json.h"
#include "tests/reference/kinds.h"

namespace kavrix::reference {

void CameraBubble(const Call& call, Out& out) {
  const char* const tag = "KavrixMapLayerMgr_CameraLayer";
  const char* const function = "ParseCameraBubbleResourceName";
  auto camera = std::make_shared<CameraDrawDescriptor>();
  out = camera;
  const std::string payload = BetweenPrefixAndMarker(call.name, 13);
  Json::Value root;
  if (!ParseObject(payload, root)) {
    call.Log(kFailure, tag, function, "parse json failed: ", payload);
    return;
  }
  if (root.isMember("cameras") && root["cameras"].isArray()) {
    for (const Json::Value& element : root["cameras"]) {
      camera->cameras.push_back({IntOr(element, "type", 0), IntOr(element, "speed", 0)});
    }
  }
  camera->scene = IntOr(root, "scene", camera->scene);
  camera->selected = IntOr(root, "is_selected_", camera->selected ? 1 : 0) == 1;
  camera->is_force = IntOr(root, "is_force_", camera->is_force ? 1 : 0) == 1;
  camera->snap_text = TextOr(root, "snap_text", camera->snap_text);
  camera->lan = TextOr(root, "lan", camera->lan);
  camera->mode_flag = IntOr(root, "mode", camera->mode_flag ? 1 : 0) == 0;
  camera->distance = IntOr(root, "distance", camera->distance);
  camera->direction = Low16(IntOr(root, "direction", camera->direction));

  const BubbleLayerConfigContainer config = call.context.GetBubbleLayerConfigInLock();
  const auto& style = camera->scene == 0 ? config.camera_style : config.camera_scene_style;
  camera->plain_style_values[0] = style.Word(14);
  camera->plain_style_values[1] = style.Word(15);
  camera->plain_style_values[2] = style.Word(16);
  camera->mode_style_value = style.Word(camera->mode_flag ? 17 : 18);
  camera->style_name = style.name;
  call.Log(kRoutine, tag, function, *camera);
}

}  // namespace kavrix::reference
