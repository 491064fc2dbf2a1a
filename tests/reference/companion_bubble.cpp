#include "descriptors/companion_bubble_draw_descriptor.h"
#include "tests/reference/fields.h"
#include "tests/reference/json.h"
#include "tests/reference/kinds.h"

namespace kavrix::reference {
namespace {

void ReadKeys(const Json::Value& root, CompanionBubbleDrawDescriptor& companion) {
  const int is_force = IntOr(root, "is_force_", companion.is_force ? 1 : 0);
  companion.is_force = is_force == 1;
  companion.time = TextOr(root, "time", companion.time);
  companion.distance = TextOr(root, "distance", companion.distance);
  companion.fee = TextOr(root, "fee", companion.fee);
  companion.light = TextOr(root, "light", companion.light);
  companion.label = TextOr(root, "label", companion.label);
  companion.mode_flag = IntOr(root, "mode", companion.mode_flag ? 1 : 0) == 0;
  companion.better = IntOr(root, "better", companion.better ? 1 : 0) == 1;
  companion.scene = IntOr(root, "scene", companion.scene);
  BubbleDrawDescriptor& base = companion;
  base.scene = IntOr(root, "scene_", base.scene);
  companion.is_force = is_force != 0;  // replaces the first one
}

}  // namespace

void CompanionBubble(const Call& call, Out& out) {
  const char* const function = "ParseCompanionBubbleResourceName";
  auto companion = std::make_shared<CompanionBubbleDrawDescriptor>();
  out = companion;
  const std::vector<std::string> parts = Split(AfterPrefix(call.name), '@');
  if (parts.size() == 2) {
    Json::Value root;
    if (ParseObject(parts[0], root)) {
      ReadKeys(root, *companion);
      ReadDirection(parts[1], *companion);
    } else {
      call.Log(kFailure, "KavrixMapLayerMgr_BubbleTraffic", function, "parse json failed: ", call.name);
    }
  }

  const BubbleLayerConfigContainer config = call.context.GetBubbleLayerConfigInLock();
  const auto& style = config.companion_style;
  if (companion->mode_flag) {
    companion->style_word = companion->better ? style.Word(3) : style.Word(2);
  } else {
    companion->style_word = companion->better ? style.Word(5) : style.Word(4);
  }
  companion->style_name = style.name;
  companion->style_scale[0] = style.Float(6);
  companion->style_scale[1] = style.Float(7);
  call.Log(kRoutine, "KavrixMapLayerMgr_BubbleCompanion", function, *companion);
}

}  // namespace kavrix::reference
