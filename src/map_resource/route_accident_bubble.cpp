// The route-accident bubble: an accident on the route.
//
//   name = prefix JSON-object ".RouteAccidentBubble"
//   keys : scene, content, lan, type, direction, mode, is_force_, accident_id, severity
//
// The descriptor gets the whole name and finds its JSON object in it, from the first "{" after the prefix to
// the last "}". The parser writes no log record, fills no style and sets no kind code. A name without a
// readable object gives a descriptor as constructed.

#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_transform.h"
#include "map_resource/name_codec.h"
#include "map_resource/resource_name_encoder.h"
#include "map_resource/self_initialised_keys.h"

namespace kavrix {

namespace {

struct RouteAccidentFormat : WholeNameFormat<RouteAccidentFormat, RouteAccidentBubbleDrawDescriptor> {
  static constexpr std::string_view kMarker = MarkerOf(BubbleKind::kRouteAccident);
  template <class Keys, class Descriptor>
  static void List(Keys& keys, Descriptor& bubble) {
    SelfInitialisedKeys(keys, bubble);
    keys.Text("accident_id", bubble.accident_id);
    keys.Integer("severity", bubble.severity);
  }
};

}  // namespace

bool RouteAccidentBubbleDrawDescriptor::InitWithJson(const std::string& text) {
  const std::string copy(text.begin(), text.end());  // of a text that may be a member of this object
  return RouteAccidentFormat::Read(RouteAccidentFormat::PayloadOf(copy), *this);
}

void MapResourceTransform::ParseRouteAccidentResourceName(const std::string& resource_name,
                                                          std::shared_ptr<BubbleDrawDescriptor>& out) {
  PublishInitialised<RouteAccidentBubbleDrawDescriptor>(resource_name, out);
}

std::string EncodeRouteAccidentResourceName(const RouteAccidentBubbleDrawDescriptor& accident) {
  return EncodeName<RouteAccidentFormat>(accident);
}

constexpr BubbleKindInfo kRouteAccidentBubbleInfo = MakeInfo<RouteAccidentFormat>(
    BubbleKind::kRouteAccident, std::nullopt, PayloadWay::kWholeName, "JSON object");

}  // namespace kavrix
