// The underground-park bubble: an underground car park.
//
//   name = prefix JSON-object ".UndergroundParkBubble"
//   keys : lan, mode, direction, name
//
// Irregular: "name" fills the content. The payload of every good name is logged, at the level of failures.

#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_transform.h"
#include "map_resource/name_codec.h"
#include "map_resource/resource_name_encoder.h"
#include "util/tagged_log.h"

namespace kavrix {

using logging::LogLevel;

namespace {

constexpr std::uint16_t kKindCode = 25;

struct UndergroundParkFormat : JsonFormat<UndergroundParkFormat, BubbleDrawDescriptor> {
  static constexpr std::string_view kMarker = MarkerOf(BubbleKind::kUndergroundPark);
  template <class Keys, class Descriptor>
  static void List(Keys& keys, Descriptor& bubble) {
    keys.Text("lan", bubble.lan);
    keys.TrueWhenZero("mode", bubble.mode_flag);
    keys.Integer("direction", bubble.direction);
    keys.Text("name", bubble.content);
  }
};

}  // namespace

void MapResourceTransform::ParseUndergroundParkBubbleResourceName(
    const std::string& resource_name, std::shared_ptr<BubbleDrawDescriptor>& out) {
  const auto bubble = Publish<BubbleDrawDescriptor>(out);
  bubble->bubble_kind = kKindCode;
  const std::string_view payload = UndergroundParkFormat::PayloadOf(resource_name);
  const char* const function = __func__;
  const auto log_payload = [&] {
    KAVRIX_LOG_IN(function, LogTagKavrixMapLayerMgr_BubbleTraffic, LogLevel::kFailure, payload);
  };
  if (!UndergroundParkFormat::Read(payload, *bubble, Decoding(), log_payload)) {
    KAVRIX_LOG(LogTagKavrixMapLayerMgr_BubbleTraffic, LogLevel::kFailure, "parse json failed: " << payload);
  }
}

std::string EncodeUndergroundParkBubbleResourceName(const BubbleDrawDescriptor& bubble) {
  return EncodeName<UndergroundParkFormat>(bubble);
}

constexpr BubbleKindInfo kUndergroundParkBubbleInfo = MakeInfo<UndergroundParkFormat>(
    BubbleKind::kUndergroundPark, kKindCode, PayloadWay::kPrefixAndMarkerStripped, "JSON object");

}  // namespace kavrix
