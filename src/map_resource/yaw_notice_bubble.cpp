// The yaw-notice bubble: the car has left its route.
//
//   name = prefix JSON-object ".YawNoticeBubble"
//   keys : scene, content, lan, type, direction, mode, is_force_, reason
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

struct YawNoticeFormat : WholeNameFormat<YawNoticeFormat, YawNoticeBubbleDrawDescriptor> {
  static constexpr std::string_view kMarker = MarkerOf(BubbleKind::kYawNotice);
  template <class Keys, class Descriptor>
  static void List(Keys& keys, Descriptor& bubble) {
    SelfInitialisedKeys(keys, bubble);
    keys.Integer("reason", bubble.reason);
  }
};

}  // namespace

bool YawNoticeBubbleDrawDescriptor::InitWithJson(const std::string& text) {
  const std::string copy(text.begin(), text.end());  // of a text that may be a member of this object
  return YawNoticeFormat::Read(YawNoticeFormat::PayloadOf(copy), *this);
}

std::string EncodeYawNoticeResourceName(const YawNoticeBubbleDrawDescriptor& notice) {
  return EncodeName<YawNoticeFormat>(notice);
}

constexpr BubbleKindInfo kYawNoticeBubbleInfo =
    MakeInfo<YawNoticeFormat>(BubbleKind::kYawNotice, std::nullopt, PayloadWay::kWholeName, "JSON object");

}  // namespace kavrix
