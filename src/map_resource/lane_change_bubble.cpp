// The lane-change bubble: advice of HD guidance to change lanes.
//
//   name = prefix JSON-object ".LaneChangeBubble"
//   keys : scene, content, lan, type, direction, mode, is_force_, target_lane, distance
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

struct LaneChangeFormat : WholeNameFormat<LaneChangeFormat, HDLaneChangeBubbleDrawDescriptor> {
  static constexpr std::string_view kMarker = MarkerOf(BubbleKind::kLaneChange);
  template <class Keys, class Descriptor>
  static void List(Keys& keys, Descriptor& bubble) {
    SelfInitialisedKeys(keys, bubble);
    keys.Integer("target_lane", bubble.target_lane);
    keys.Integer("distance", bubble.distance);
  }
};

}  // namespace

bool HDLaneChangeBubbleDrawDescriptor::InitWithJson(const std::string& text) {
  const std::string copy(text.begin(), text.end());  // of a text that may be a member of this object
  return LaneChangeFormat::Read(LaneChangeFormat::PayloadOf(copy), *this);
}

std::string EncodeLaneChangeResourceName(const HDLaneChangeBubbleDrawDescriptor& change) {
  return EncodeName<LaneChangeFormat>(change);
}

constexpr BubbleKindInfo kLaneChangeBubbleInfo =
    MakeInfo<LaneChangeFormat>(BubbleKind::kLaneChange, std::nullopt, PayloadWay::kWholeName, "JSON object");

}  // namespace kavrix
