#include "descriptors/dest_name_eta_draw_descriptor.h"
#include "tests/reference/fields.h"
#include "tests/reference/kinds.h"

namespace kavrix::reference {

void EtaBubble(const Call& call, Out& out) {
  const char* const tag = "KavrixMapLayerMgr_DestNameEta";
  const char* const function = "ParseEtaBubbleResourceName";
  call.Log(kRoutine, tag, function, "resource_name:", call.name);
  auto eta = std::make_shared<DestNameEtaDrawDescriptor>();
  out = eta;
  const std::vector<std::string> parts = Split(AfterPrefix(call.name), '@');
  if (parts.size() == 2) {
    const std::vector<std::string> fields = Split(parts[0], '_');
    if (fields.size() == 4) {
      eta->content = fields[0];
      ReadMode(fields[1], *eta);
      ToInt(fields[3], eta->scene);
    }
    ReadDirection(parts[1], *eta);
  }
  const std::size_t bar = eta->content.rfind('|');
  if (bar != std::string::npos) eta->sub_text = eta->content.substr(bar + 1);
  eta->content = eta->content.substr(0, bar);

  const BubbleLayerConfigContainer config = call.context.GetBubbleLayerConfigInLock();
  const auto& style = eta->scene == 0 ? config.eta_style : config.eta_scene_style;
  eta->style_name = style.name;
  eta->style_scale[0] = style.Float(2);
  eta->style_scale[1] = style.Float(8);
  eta->second_style_value = style.Word(5);
  eta->style_word = style.Word(eta->mode_flag ? 3 : 4);
  eta->second_mode_style_value = style.Word(eta->mode_flag ? 6 : 7);
  eta->third_mode_style_value = style.Word(eta->mode_flag ? 9 : 10);
  eta->fourth_mode_style_value = style.Word(eta->mode_flag ? 11 : 12);
  call.Log(kRoutine, tag, function, *eta);
}

}  // namespace kavrix::reference
