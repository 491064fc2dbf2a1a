#include "descriptors/light_countdown_timer_draw_descriptor.h"
#include "tests/reference/fields.h"
#include "tests/reference/json.h"
#include "tests/reference/kinds.h"

namespace kavrix::reference {
namespace {

void ReadKeys(const Json::Value& root, LightCountdownTimerDrawDescriptor& light) {
  light.is_force = IntOr(root, "is_force_", light.is_force ? 1 : 0) == 1;
  light.scene = IntOr(root, "scene", light.scene);
  light.mode_flag = IntOr(root, "mode", light.mode_flag ? 1 : 0) == 0;
  light.id = TextOr(root, "id", light.id);
  light.style = IntOr(root, "style", light.style);
  light.light_type = IntOr(root, "light_type", light.light_type);
  light.turn_arrow_type = IntOr(root, "turn_arrow_type", light.turn_arrow_type);
  light.time = IntOr(root, "time", light.time);
  light.text = TextOr(root, "text", light.text);
}

}  // namespace

void LightCountdownBubble(const Call& call, Out& out) {
  const char* const tag = "KavrixMapLayerMgr_LightCountdownTimer";
  const char* const function = "ParseLightCountdownBubbleResourceName";
  auto light = std::make_shared<LightCountdownTimerDrawDescriptor>();
  out = light;
  const std::vector<std::string> parts = Split(AfterPrefix(call.name), '@');
  if (parts.size() == 2) {
    Json::Value root;
    if (ParseObject(parts[0], root)) {
      ReadKeys(root, *light);
    } else {
      call.Log(kFailure, tag, function, "parse json failed: ", parts[0]);
    }
    // After a broken object too.
    ReadDirection(parts[1], *light);
  }
  call.Log(kRoutine, tag, function, *light);
}

}  // namespace kavrix::reference
