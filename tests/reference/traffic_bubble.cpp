#include "descriptors/traffic_draw_descriptor.h"
#include "tests/reference/fields.h"
#include "tests/reference/json.h"
#include "tests/reference/kinds.h"
#include "tests/reference/style.h"

namespace kavrix::reference {
namespace {

template <class Record>
void ApplyStyle(const Record& record, TrafficDrawDescriptor& traffic) {
  CommonStyle(record, traffic);
  traffic.style_float_1 = record.Float(traffic.mode_flag ? 4 : 8);
  traffic.style_float_2 = record.Float(traffic.mode_flag ? 5 : 9);
  traffic.style_float_3 = record.Float(traffic.mode_flag ? 6 : 10);
  traffic.style_word_2 = record.Word(traffic.mode_flag ? 7 : 11);
}

}  // namespace

void TrafficBubble(const Call& call, Out& out) {
  const char* const tag = "KavrixMapLayerMgr_BubbleTraffic";
  const char* const function = "ParseTrafficBubbleResourceName";
  auto traffic = std::make_shared<TrafficDrawDescriptor>();
  out = traffic;
  traffic->bubble_kind = 1;
  const std::string payload = BetweenPrefixAndMarker(call.name, 14);
  Json::Value root;
  if (!ParseObject(payload, root)) {
    call.Log(kFailure, tag, function, "parse json failed: ", payload);
    return;
  }
  traffic->content = TextOr(root, "content", traffic->content);
  traffic->direction = Low16(IntOr(root, "direction", traffic->direction));
  traffic->mode_flag = IntOr(root, "mode", traffic->mode_flag ? 1 : 0) == 0;
  traffic->light_text = TextOr(root, "light_text", traffic->light_text);
  traffic->scene = IntOr(root, "scene", traffic->scene);
  traffic->extra_type = IntOr(root, "extra_type", traffic->extra_type);
  const int nav_mode = IntOr(root, "nav_mode", 1);

  const BubbleLayerConfigContainer config = call.context.GetBubbleLayerConfigInLock();
  if (traffic->scene == 0) {
    ApplyStyle(config.traffic_style, *traffic);
  } else if (nav_mode == 1) {
    ApplyStyle(config.traffic_nav_style, *traffic);
  } else {
    ApplyStyle(config.traffic_scene_style, *traffic);
  }
  call.Log(kRoutine, tag, function, *out);
}

}  // namespace kavrix::reference
