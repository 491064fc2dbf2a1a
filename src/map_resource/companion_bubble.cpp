// The companion bubble: how another route compares with the main one.
//
//   name = prefix JSON-object "@" direction ".companionBubble"
//   keys : is_force_, time, distance, fee, light, label, mode, better, scene, scene_
//
// Irregular: "scene" fills the companion's own scene, "scene_" the base's. "is_force_" is true when not 0;
// other kinds require 1. A broken JSON object is logged under the traffic tag with the whole name, and the
// direction after it is then not read. The style is filled and the closing log record written in any case.
// Each of the two scales has a value of its own.

#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_transform.h"
#include "map_resource/name_codec.h"
#include "map_resource/resource_name_encoder.h"
#include "util/tagged_log.h"

namespace kavrix {

using logging::LogLevel;

namespace {

struct CompanionFormat : JsonAndDirectionFormat<CompanionFormat, CompanionBubbleDrawDescriptor> {
  static constexpr std::string_view kMarker = MarkerOf(BubbleKind::kCompanion);
  template <class Keys, class Companion>
  static void List(Keys& keys, Companion& companion) {
    keys.TrueWhenNonZero("is_force_", companion.is_force);
    keys.Text("time", companion.time);
    keys.Text("distance", companion.distance);
    keys.Text("fee", companion.fee);
    keys.Text("light", companion.light);
    keys.Text("label", companion.label);
    keys.TrueWhenZero("mode", companion.mode_flag);
    keys.TrueWhenOne("better", companion.better);
    keys.Integer("scene", companion.scene);
    keys.Integer("scene_", companion.BubbleDrawDescriptor::scene);
  }
  template <class Reading = Decoding>
  static bool Read(std::string_view payload, CompanionBubbleDrawDescriptor& companion, Reading reading = {}) {
    Fields<2> parts;
    if (!reading.Split(payload, '@', parts)) return true;
    if (!reading.ReadObject(parts.at[0], [&](auto& keys) { List(keys, companion); })) return false;
    reading.ReadDirectionTail(parts.at[1], companion);
    return true;
  }
};

std::size_t StyleWordNumber(const CompanionBubbleDrawDescriptor& companion) {
  if (companion.mode_flag) return companion.better ? 3 : 2;
  return companion.better ? 5 : 4;
}

}  // namespace

void MapResourceTransform::ParseCompanionBubbleResourceName(const std::string& resource_name,
                                                            std::shared_ptr<BubbleDrawDescriptor>& out) {
  const auto companion = Publish<CompanionBubbleDrawDescriptor>(out);
  if (!CompanionFormat::Read(CompanionFormat::PayloadOf(resource_name), *companion)) {
    KAVRIX_LOG(LogTagKavrixMapLayerMgr_BubbleTraffic, LogLevel::kFailure,
               "parse json failed: " << resource_name);
  }

  BubbleLayerConfigContainer config = context_->GetBubbleLayerConfigInLock();
  auto& style = config.companion_style;
  companion->style_word = style.Word(StyleWordNumber(*companion));
  companion->style_name = std::move(style.name);
  companion->style_scale = {style.Float(6), style.Float(7)};
  KAVRIX_LOG(LogTagKavrixMapLayerMgr_BubbleCompanion, LogLevel::kRoutine, *companion);
}

std::string EncodeCompanionBubbleResourceName(const CompanionBubbleDrawDescriptor& companion) {
  return EncodeName<CompanionFormat>(companion);
}

constexpr BubbleKindInfo kCompanionBubbleInfo = MakeInfo<CompanionFormat>(
    BubbleKind::kCompanion, std::nullopt, PayloadWay::kPrefixStripped, "JSON object \"@\" direction");

}  // namespace kavrix
