// The safe-warning bubble: a safety warning ahead.
//
//   name = prefix JSON-object "@" direction ".SafeWarningBubble"
//   keys : scene, content, lan, type, direction, mode, is_force_, category, distance
//
// Irregular: a payload that is not two pieces leaves `out` alone, as no other kind does, and is logged under
// the traffic tag. The piece behind "@" is the whole of the rest, so it takes no dot; where it is no number
// the direction stays what the JSON object made it. The descriptor is published whatever it made of its JSON
// text.

#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_transform.h"
#include "map_resource/name_codec.h"
#include "map_resource/resource_name_encoder.h"
#include "map_resource/self_initialised_keys.h"
#include "util/tagged_log.h"

namespace kavrix {

using logging::LogLevel;

namespace {

struct SafeWarningNames {
  static constexpr std::string_view kMarker = MarkerOf(BubbleKind::kSafeWarning);
  using Carried = SafeWarningBubbleDrawDescriptor;
  template <class Keys, class Descriptor>
  static void List(Keys& keys, Descriptor& bubble) {
    SelfInitialisedKeys(keys, bubble);
    keys.Integer("category", bubble.category);
    keys.Integer("distance", bubble.distance);
  }
  template <class Keys, class Descriptor>
  static void ListAll(Keys& keys, Descriptor& bubble) {
    List(keys, bubble);
  }
  static bool Read(const std::string& name, SafeWarningBubbleDrawDescriptor& warning) {
    const auto parts = SplitFields<2>(StripPrefixAndMarker(name, kMarker), '@');
    if (parts.count != 2) return false;
    ReadParts(parts, warning);
    return true;
  }
  static void ReadParts(const Fields<2>& parts, SafeWarningBubbleDrawDescriptor& warning) {
    warning.InitWithJson(std::string(parts.at[0]));
    FieldReader(&parts.at[1]).Integer(0, "direction", warning.direction);
  }
  // The direction is always there behind "@", so the object leaves it out.
  static Payload Write(const SafeWarningBubbleDrawDescriptor& warning) {
    SafeWarningBubbleDrawDescriptor without_direction = warning;
    without_direction.direction = 0;
    return WithDirection(WriteJsonObject<SafeWarningNames>(without_direction), warning.direction);
  }
};

}  // namespace

bool SafeWarningBubbleDrawDescriptor::InitWithJson(const std::string& text) {
  return ReadJsonObject(text, [&](auto& keys) { SafeWarningNames::List(keys, *this); });
}

void MapResourceTransform::ParseSafeWarningResourceName(const std::string& resource_name,
                                                        std::shared_ptr<BubbleDrawDescriptor>& out) {
  const std::string_view payload = StripPrefixAndMarker(resource_name, SafeWarningNames::kMarker);
  const auto parts = SplitFields<2>(payload, '@');
  if (parts.count != 2) {
    KAVRIX_LOG(LogTagKavrixMapLayerMgr_BubbleTraffic, LogLevel::kFailure,
               "parse resource_name failed: " << payload);
    return;
  }
  auto warning = std::make_shared<SafeWarningBubbleDrawDescriptor>();
  SafeWarningNames::ReadParts(parts, *warning);
  out = std::move(warning);
}

std::string EncodeSafeWarningResourceName(const SafeWarningBubbleDrawDescriptor& warning) {
  return EncodeName<SafeWarningNames>(warning);
}

const BubbleKindInfo kSafeWarningBubbleInfo = {"SafeWarningBubbleDrawDescriptor", std::nullopt,
                                               PayloadWay::kPrefixAndMarkerStripped,
                                               "JSON object \"@\" direction", kCodec<SafeWarningNames>};

}  // namespace kavrix
