// The light countdown bubble: the countdown of one traffic light.
//
//   name = prefix JSON-object "@" direction ".lightCountdownBubble"
//   keys : is_force_, scene, mode, id, style, light_type, turn_arrow_type, time, text
//
// The direction is read even when the JSON object is broken, after that failure is logged. The closing log
// record is written in any case.

#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_transform.h"
#include "map_resource/name_codec.h"
#include "map_resource/resource_name_encoder.h"
#include "util/tagged_log.h"

namespace kavrix {

using logging::LogLevel;

namespace {

struct LightCountdownFormat
    : JsonAndDirectionFormat<LightCountdownFormat, LightCountdownTimerDrawDescriptor> {
  static constexpr std::string_view kMarker = MarkerOf(BubbleKind::kLightCountdown);
  template <class Keys, class Light>
  static void List(Keys& keys, Light& light) {
    keys.TrueWhenOne("is_force_", light.is_force);
    keys.Integer("scene", light.scene);
    keys.TrueWhenZero("mode", light.mode_flag);
    keys.Text("id", light.id);
    keys.Integer("style", light.style);
    keys.Integer("light_type", light.light_type);
    keys.Integer("turn_arrow_type", light.turn_arrow_type);
    keys.Integer("time", light.time);
    keys.Text("text", light.text);
  }
};

}  // namespace

void MapResourceTransform::ParseLightCountdownBubbleResourceName(const std::string& resource_name,
                                                                 std::shared_ptr<BubbleDrawDescriptor>& out) {
  const auto light = Publish<LightCountdownTimerDrawDescriptor>(out);
  const char* const function = __func__;
  const auto log_failure = [this, function](std::string_view json) {
    KAVRIX_LOG_IN(function, LogTagKavrixMapLayerMgr_LightCountdownTimer, LogLevel::kFailure,
                  "parse json failed: " << json);
  };
  LightCountdownFormat::Read(LightCountdownFormat::PayloadOf(resource_name), *light, Decoding(), log_failure);
  KAVRIX_LOG(LogTagKavrixMapLayerMgr_LightCountdownTimer, LogLevel::kRoutine, *light);
}

std::string EncodeLightCountdownBubbleResourceName(const LightCountdownTimerDrawDescriptor& light) {
  return EncodeName<LightCountdownFormat>(light);
}

constexpr BubbleKindInfo kLightCountdownBubbleInfo = MakeInfo<LightCountdownFormat>(
    BubbleKind::kLightCountdown, std::nullopt, PayloadWay::kPrefixStripped, "JSON object \"@\" direction");

}  // namespace kavrix
