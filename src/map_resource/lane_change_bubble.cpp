// The lane-change bubble: advice of HD guidance to change lanes.
//
//   name = prefix JSON-object ".LaneChangeBubble"
//   keys : scene, content, lan, type, direction, mode, is_force_, target_lane, distance
//
// The descriptor gets the whole name and finds its JSON object in it, from the first brace behind the prefix
// to the last. No record is ever written, no style read, no kind code set; a name without a readable object
// gives a descriptor as constructed.

#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_transform.h"
#include "map_resource/self_initialised_keys.h"
#include "util/key_reader.h"

namespace kavrix {

namespace {

template <class Keys, class Descriptor>
void LaneChangeKeys(Keys& keys, Descriptor& bubble) {
  SelfInitialisedKeys(keys, bubble);
  keys.Integer("target_lane", bubble.target_lane);
  keys.Integer("distance", bubble.distance);
}

}  // namespace

bool HDLaneChangeBubbleDrawDescriptor::InitWithJson(const std::string& text) {
  Json::Value root;
  if (!JsonUtil::ParseObject(FindJsonObject(text), root)) return false;
  JsonKeyReader keys(root);
  LaneChangeKeys(keys, *this);
  return true;
}

const BubbleKindInfo kLaneChangeBubbleInfo = {"HDLaneChangeBubbleDrawDescriptor", std::nullopt,
                                              PayloadWay::kWholeName, "JSON object", [](KeyLister& keys) {
                                                HDLaneChangeBubbleDrawDescriptor bubble;
                                                LaneChangeKeys(keys, bubble);
                                              }};

}  // namespace kavrix
