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
#include "map_resource/self_initialised_keys.h"
#include "util/key_reader.h"
#include "util/tagged_log.h"

namespace kavrix {

using logging::LogLevel;

namespace {

template <class Keys, class Descriptor>
void SafeWarningKeys(Keys& keys, Descriptor& bubble) {
  SelfInitialisedKeys(keys, bubble);
  keys.Integer("category", bubble.category);
  keys.Integer("distance", bubble.distance);
}

}  // namespace

bool SafeWarningBubbleDrawDescriptor::InitWithJson(const std::string& text) {
  Json::Value root;
  if (!JsonUtil::ParseObject(text, root)) return false;
  JsonKeyReader keys(root);
  SafeWarningKeys(keys, *this);
  return true;
}

void MapResourceTransform::ParseSafeWarningResourceName(const std::string& resource_name,
                                                        std::shared_ptr<BubbleDrawDescriptor>& out) {
  const std::string_view payload = StripPrefixAndMarker(resource_name, MarkerOf(BubbleKind::kSafeWarning));
  const auto parts = SplitFields<2>(payload, '@');
  if (parts.count != 2) {
    KAVRIX_LOG(LogTagKavrixMapLayerMgr_BubbleTraffic, LogLevel::kFailure,
               "parse resource_name failed: " << payload);
    return;
  }
  auto warning = std::make_shared<SafeWarningBubbleDrawDescriptor>();
  warning->InitWithJson(std::string(parts.at[0]));
  FieldReader(&parts.at[1]).Integer(0, "direction", warning->direction);
  out = std::move(warning);
}

const BubbleKindInfo kSafeWarningBubbleInfo = {"SafeWarningBubbleDrawDescriptor", std::nullopt,
                                               PayloadWay::kPrefixAndMarkerStripped,
                                               "JSON object \"@\" direction", [](KeyLister& keys) {
                                                 SafeWarningBubbleDrawDescriptor bubble;
                                                 SafeWarningKeys(keys, bubble);
                                               }};

}  // namespace kavrix
