// The yaw-notice bubble: the car has left its route.
//
//   name = prefix JSON-object ".YawNoticeBubble"
//   keys : scene, content, lan, type, direction, mode, is_force_, reason
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
void YawNoticeKeys(Keys& keys, Descriptor& bubble) {
  SelfInitialisedKeys(keys, bubble);
  keys.Integer("reason", bubble.reason);
}

}  // namespace

bool YawNoticeBubbleDrawDescriptor::InitWithJson(const std::string& text) {
  Json::Value root;
  if (!JsonUtil::ParseObject(FindJsonObject(text), root)) return false;
  JsonKeyReader keys(root);
  YawNoticeKeys(keys, *this);
  return true;
}

const BubbleKindInfo kYawNoticeBubbleInfo = {"YawNoticeBubbleDrawDescriptor", std::nullopt,
                                             PayloadWay::kWholeName, "JSON object", [](KeyLister& keys) {
                                               YawNoticeBubbleDrawDescriptor bubble;
                                               YawNoticeKeys(keys, bubble);
                                             }};

}  // namespace kavrix
