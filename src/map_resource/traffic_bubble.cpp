// The traffic bubble: the traffic situation ahead, on the route.
//
//   name    = prefix JSON-object ".trafficBubble"
//   keys    : content, direction, mode, light_text, scene, extra_type, nav_mode
//
// "nav_mode" is not stored. With "scene" it selects the style record, and it counts as 1 when absent.

#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_transform.h"
#include "map_resource/name_codec.h"
#include "map_resource/resource_name_encoder.h"
#include "util/tagged_log.h"

namespace kavrix {

using logging::LogLevel;

namespace {

constexpr std::uint16_t kKindCode = 1;

template <class Keys, class Traffic, class Int>
void TrafficKeys(Keys& keys, Traffic& traffic, Int& nav_mode) {
  keys.Text("content", traffic.content);
  keys.Integer("direction", traffic.direction);
  keys.TrueWhenZero("mode", traffic.mode_flag);
  keys.Text("light_text", traffic.light_text);
  keys.Integer("scene", traffic.scene);
  keys.Integer("extra_type", traffic.extra_type);
  keys.Integer("nav_mode", nav_mode);
}

struct TrafficName {
  TrafficDrawDescriptor traffic;
  int nav_mode = 1;
};

struct TrafficNames : JsonNames<TrafficNames, TrafficName> {
  static constexpr std::string_view kMarker = MarkerOf(BubbleKind::kTraffic);
  template <class Keys, class Name>
  static void List(Keys& keys, Name& name) {
    TrafficKeys(keys, name.traffic, name.nav_mode);
  }
};

// The three traffic records differ in length alone.
template <class Record>
void ApplyTrafficStyle(Record&& record, TrafficDrawDescriptor& traffic) {
  ApplyCommonStyle(std::forward<Record>(record), traffic);
  const std::size_t first = traffic.mode_flag ? 4 : 8;
  traffic.style_float_1 = record.Float(first);
  traffic.style_float_2 = record.Float(first + 1);
  traffic.style_float_3 = record.Float(first + 2);
  traffic.style_word_2 = record.Word(first + 3);
}

}  // namespace

void MapResourceTransform::ParseTrafficBubbleResourceName(const std::string& resource_name,
                                                          std::shared_ptr<BubbleDrawDescriptor>& out) {
  const auto traffic = Publish<TrafficDrawDescriptor>(out);
  traffic->bubble_kind = kKindCode;
  const std::string_view payload = StripPrefixAndMarker(resource_name, TrafficNames::kMarker);
  int nav_mode = 1;
  if (!ReadJsonObject(payload, [&](auto& keys) { TrafficKeys(keys, *traffic, nav_mode); })) {
    KAVRIX_LOG(LogTagKavrixMapLayerMgr_BubbleTraffic, LogLevel::kFailure, "parse json failed: " << payload);
    return;
  }

  BubbleLayerConfigContainer config = context_->GetBubbleLayerConfigInLock();
  if (traffic->scene == 0) {
    ApplyTrafficStyle(std::move(config.traffic_style), *traffic);
  } else if (nav_mode == 1) {
    ApplyTrafficStyle(std::move(config.traffic_nav_style), *traffic);
  } else {
    ApplyTrafficStyle(std::move(config.traffic_scene_style), *traffic);
  }
  KAVRIX_LOG(LogTagKavrixMapLayerMgr_BubbleTraffic, LogLevel::kRoutine, *out);
}

std::string EncodeTrafficBubbleResourceName(const TrafficDrawDescriptor& traffic, int nav_mode) {
  return EncodeName<TrafficNames>({traffic, nav_mode});
}

const BubbleKindInfo kTrafficBubbleInfo = {"TrafficDrawDescriptor", kKindCode,
                                           PayloadWay::kPrefixAndMarkerStripped, "JSON object",
                                           kCodec<TrafficNames>};

}  // namespace kavrix
