// The kinds whose payload is a JSON object, "@" and a direction in front of the marker's dot.

#include "bench/plain/kinds.h"
#include "bench/plain/plain_fields.h"
#include "descriptors/descriptors.h"

namespace kavrix::plain {

void Companion(const KavrixContext& context, const std::string& name, Out& out) {
  auto companion = std::make_shared<CompanionBubbleDrawDescriptor>();
  out = companion;
  BubbleDrawDescriptor& base = *companion;
  const std::vector<std::string> parts = Split(AfterPrefix(name), '@');
  Json::Value root;
  if (parts.size() == 2 && Parse(parts[0], root)) {
    companion->is_force = IntOr(root, "is_force_", companion->is_force ? 1 : 0) != 0;
    companion->time = TextOr(root, "time", companion->time);
    companion->distance = TextOr(root, "distance", companion->distance);
    companion->fee = TextOr(root, "fee", companion->fee);
    companion->light = TextOr(root, "light", companion->light);
    companion->label = TextOr(root, "label", companion->label);
    companion->mode_flag = IntOr(root, "mode", companion->mode_flag ? 1 : 0) == 0;
    companion->better = IntOr(root, "better", companion->better ? 1 : 0) == 1;
    companion->scene = IntOr(root, "scene", companion->scene);
    base.scene = IntOr(root, "scene_", base.scene);
    ReadDirection(parts[1], *companion);
  }

  const BubbleLayerConfigContainer config = context.GetBubbleLayerConfigInLock();
  const auto& style = config.companion_style;
  if (companion->mode_flag) {
    companion->style_word = companion->better ? style.Word(3) : style.Word(2);
  } else {
    companion->style_word = companion->better ? style.Word(5) : style.Word(4);
  }
  companion->style_name = style.name;
  companion->style_scale[0] = style.Float(6);
  companion->style_scale[1] = style.Float(7);
}

void LightCountdown(const std::string& name, Out& out) {
  auto light = std::make_shared<LightCountdownTimerDrawDescriptor>();
  out = light;
  const std::vector<std::string> parts = Split(AfterPrefix(name), '@');
  if (parts.size() != 2) return;
  Json::Value root;
  if (Parse(parts[0], root)) {
    light->is_force = IntOr(root, "is_force_", light->is_force ? 1 : 0) == 1;
    light->scene = IntOr(root, "scene", light->scene);
    light->mode_flag = IntOr(root, "mode", light->mode_flag ? 1 : 0) == 0;
    light->id = TextOr(root, "id", light->id);
    light->style = IntOr(root, "style", light->style);
    light->light_type = IntOr(root, "light_type", light->light_type);
    light->turn_arrow_type = IntOr(root, "turn_arrow_type", light->turn_arrow_type);
    light->time = IntOr(root, "time", light->time);
    light->text = TextOr(root, "text", light->text);
  }
  ReadDirection(parts[1], *light);
}

void MultiLightCountdown(const KavrixContext& context, const std::string& name, Out& out) {
  auto lights = std::make_shared<MultiLightCountdownTimerDrawDescriptor>();
  out = lights;
  lights->type = static_cast<std::int16_t>(context.multi_light_type.load());
  const std::vector<std::string> parts = Split(AfterPrefix(name), '@');
  if (parts.size() != 2) return;
  Json::Value root;
  if (Parse(parts[0], root)) {
    lights->is_force = IntOr(root, "is_force_", lights->is_force ? 1 : 0) == 1;
    lights->scene = IntOr(root, "scene", lights->scene);
    lights->mode_flag = IntOr(root, "mode", lights->mode_flag ? 1 : 0) == 0;
    lights->style = IntOr(root, "style", lights->style);
    lights->id = TextOr(root, "id", lights->id);
    lights->is_animation = IntOr(root, "is_animation", lights->is_animation ? 1 : 0) == 1;
    if (root.isMember("light_descriptors") && root["light_descriptors"].isArray()) {
      for (const Json::Value& element : root["light_descriptors"]) {
        MultiLightCountdownTimerDrawDescriptor::OneLightCountdownTimerDrawDescriptor light;
        light.light_type = IntOr(element, "light_type", light.light_type);
        light.turn_arrow_type = IntOr(element, "turn_arrow_type", light.turn_arrow_type);
        light.remain_time = IntOr(element, "remain_time", light.remain_time);
        light.text = TextOr(element, "text", "");
        light.total_time = IntOr(element, "total_time", 0);
        lights->light_descriptors.push_back(light);
      }
    }
  }
  ReadDirection(parts[1], *lights);
}

}  // namespace kavrix::plain
