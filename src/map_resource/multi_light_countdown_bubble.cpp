// The multi-light countdown bubble: the countdowns of several traffic lights.
//
//   name = prefix JSON-object "@" direction ".multiLightCountdownBubble"
//   keys : is_force_, scene, mode, style, id, is_animation,
//          light_descriptors (array of light_type, turn_arrow_type, remain_time, text, total_time)
//
// Irregular: `type` is set from the context, before the payload is read. A light without "turn_arrow_type"
// has -1. Each element of the array gives a light, whatever its JSON type. The direction is read even when
// the JSON object is broken, after that failure is logged. The tag is that of the light countdown bubble.

#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_transform.h"
#include "map_resource/name_codec.h"
#include "map_resource/resource_name_encoder.h"
#include "util/tagged_log.h"

namespace kavrix {

using logging::LogLevel;

namespace {

struct MultiLightCountdownFormat
    : JsonAndDirectionFormat<MultiLightCountdownFormat, MultiLightCountdownTimerDrawDescriptor> {
  static constexpr std::string_view kMarker = MarkerOf(BubbleKind::kMultiLightCountdown);
  template <class Keys, class Lights>
  static void List(Keys& keys, Lights& lights) {
    keys.TrueWhenOne("is_force_", lights.is_force);
    keys.Integer("scene", lights.scene);
    keys.TrueWhenZero("mode", lights.mode_flag);
    keys.Integer("style", lights.style);
    keys.Text("id", lights.id);
    keys.TrueWhenOne("is_animation", lights.is_animation);
    keys.Objects("light_descriptors", lights.light_descriptors, [](auto& item_keys, auto& light) {
      item_keys.Integer("light_type", light.light_type);
      item_keys.Integer("turn_arrow_type", light.turn_arrow_type, light.kNoTurnArrow);
      item_keys.Integer("remain_time", light.remain_time);
      item_keys.Text("text", light.text);
      item_keys.Integer("total_time", light.total_time);
    });
  }
};

}  // namespace

void MapResourceTransform::ParseMultiLightCountdownBubbleResourceName(
    const std::string& resource_name, std::shared_ptr<BubbleDrawDescriptor>& out) {
  const auto lights = Publish<MultiLightCountdownTimerDrawDescriptor>(out);
  lights->type = static_cast<std::int16_t>(context_->multi_light_type.load());
  const char* const function = __func__;
  const auto log_failure = [this, function](std::string_view json) {
    KAVRIX_LOG_IN(function, LogTagKavrixMapLayerMgr_LightCountdownTimer, LogLevel::kFailure,
                  "parse json failed: " << json);
  };
  MultiLightCountdownFormat::Read(MultiLightCountdownFormat::PayloadOf(resource_name), *lights, Decoding(),
                                  log_failure);
  KAVRIX_LOG(LogTagKavrixMapLayerMgr_LightCountdownTimer, LogLevel::kRoutine, *lights);
}

std::string EncodeMultiLightCountdownBubbleResourceName(
    const MultiLightCountdownTimerDrawDescriptor& lights) {
  return EncodeName<MultiLightCountdownFormat>(lights);
}

constexpr BubbleKindInfo kMultiLightCountdownBubbleInfo =
    MakeInfo<MultiLightCountdownFormat>(BubbleKind::kMultiLightCountdown, std::nullopt,
                                        PayloadWay::kPrefixStripped, "JSON object \"@\" direction");

}  // namespace kavrix
