// The safe-warning bubble: a safety warning ahead.
//
//   name = prefix JSON-object "@" direction ".SafeWarningBubble"
//   keys : scene, content, lan, type, direction, mode, is_force_, category, distance
//
// Irregular: a payload that is not two parts leaves `out` unchanged, as in no other kind, and is logged under
// the traffic tag. The part after "@" is the number itself, without a dot; if it is not a number, the
// direction is that of the JSON object. A broken JSON object is not logged, and the descriptor is published
// all the same.

#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_transform.h"
#include "map_resource/name_codec.h"
#include "map_resource/resource_name_encoder.h"
#include "map_resource/self_initialised_keys.h"
#include "util/tagged_log.h"

namespace kavrix {

using logging::LogLevel;

namespace {

struct SafeWarningFormat : JsonFormat<SafeWarningFormat, SafeWarningBubbleDrawDescriptor> {
  static constexpr std::string_view kMarker = MarkerOf(BubbleKind::kSafeWarning);
  template <class Keys, class Descriptor>
  static void List(Keys& keys, Descriptor& bubble) {
    SelfInitialisedKeys(keys, bubble);
    keys.Integer("category", bubble.category);
    keys.Integer("distance", bubble.distance);
  }
  // False when the payload is not two parts.
  template <class Reading = Decoding>
  static bool Read(std::string_view payload, SafeWarningBubbleDrawDescriptor& warning, Reading reading = {}) {
    Fields<2> parts;
    if (!reading.Split(payload, '@', parts)) return false;
    reading.ReadObject(parts.at[0], [&](auto& keys) { List(keys, warning); });
    reading.ReadDirection(parts.at[1], warning);
    return true;
  }
};

// The direction is always there after "@", so the object leaves it out.
Payload PayloadFor(const SafeWarningFormat&, const KeyWriter& written,
                   const SafeWarningBubbleDrawDescriptor& warning) {
  return WithDirection({written.Object("direction"), written.bad()}, warning.direction);
}

}  // namespace

bool SafeWarningBubbleDrawDescriptor::InitWithJson(const std::string& text) {
  const std::string copy(text.begin(), text.end());  // of a text that may be a member of this object
  return ReadJsonObject(copy, [&](auto& keys) { SafeWarningFormat::List(keys, *this); });
}

void MapResourceTransform::ParseSafeWarningResourceName(const std::string& resource_name,
                                                        std::shared_ptr<BubbleDrawDescriptor>& out) {
  const std::string_view payload = SafeWarningFormat::PayloadOf(resource_name);
  auto warning = std::make_shared<SafeWarningBubbleDrawDescriptor>();
  if (!SafeWarningFormat::Read(payload, *warning)) {
    KAVRIX_LOG(LogTagKavrixMapLayerMgr_BubbleTraffic, LogLevel::kFailure,
               "parse resource_name failed: " << payload);
    return;
  }
  out = std::move(warning);
}

std::string EncodeSafeWarningResourceName(const SafeWarningBubbleDrawDescriptor& warning) {
  return EncodeName<SafeWarningFormat>(warning);
}

constexpr BubbleKindInfo kSafeWarningBubbleInfo =
    MakeInfo<SafeWarningFormat>(BubbleKind::kSafeWarning, std::nullopt, PayloadWay::kPrefixAndMarkerStripped,
                                "JSON object \"@\" direction");

}  // namespace kavrix
