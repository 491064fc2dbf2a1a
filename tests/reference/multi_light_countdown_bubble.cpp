#include "descriptors/multi_light_countdown_timer_draw_descriptor.h"
#include "tests/reference/fields.h"
#include "tests/reference/json.h"
#include "tests/reference/kinds.h"

namespace kavrix::reference {
namespace {

void ReadLights(const Json::Value& array, MultiLightCountdownTimerDrawDescriptor& lights) {
  for (const Json::Value& element : array) {
    MultiLightCountdownTimerDrawDescriptor::OneLightCountdownTimerDrawDescriptor light;
    light.light_type = IntOr(element, "light_type", light.light_type);
    light.turn_arrow_type = IntOr(element, "turn_arrow_type", light.turn_arrow_type);
    light.remain_time = IntOr(element, "remain_time", light.remain_time);
    light.text = TextOr(element, "text", "");
    light.total_time = IntOr(element, "total_time", 0);
    lights.light_descriptors.push_back(light);
  }
}

void ReadKeys(const Json::Value& root, MultiLightCountdownTimerDrawDescriptor& lights) {
  lights.is_force = IntOr(root, "is_force_", lights.is_force ? 1 : 0) == 1;
  lights.scene = IntOr(root, "scene", lights.scene);
  lights.mode_flag = IntOr(root, "mode", lights.mode_flag ? 1 : 0) == 0;
  lights.style = IntOr(root, "style", lights.style);
  lights.id = TextOr(root, "id", lights.id);
  lights.is_animation = IntOr(root, "is_animation", lights.is_animation ? 1 : 0) == 1;
  if (root.isMember("light_descriptors") && root["light_descriptors"].isArray()) {
    ReadLights(root["light_descriptors"], lights);
  }
}

}  // namespace

void MultiLightCountdownBubble(const Call& call, Out& out) {
  const char* const tag = "KavrixMapLayerMgr_LightCountdownTimer";
  const char* const function = "ParseMultiLightCountdownBubbleResourceName";
  auto lights = std::make_shared<MultiLightCountdownTimerDrawDescriptor>();
  out = lights;
  lights->type = Low16(call.context.multi_light_type.load());
  const std::vector<std::string> parts = Split(AfterPrefix(call.name), '@');
  if (parts.size() == 2) {
    Json::Value root;
    if (ParseObject(parts[0], root)) {
      ReadKeys(root, *lights);
    } else {
      call.Log(kFailure, tag, function, "parse json failed: ", parts[0]);
    }
    // After a broken object too.
    ReadDirection(parts[1], *lights);
  }
  call.Log(kRoutine, tag, function, *lights);
}

}  // namespace kavrix::reference
