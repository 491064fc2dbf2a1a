// The traffic bubble: the traffic ahead on the route.
//
//   name = prefix JSON-object ".trafficBubble"
//   keys : content, direction, mode, light_text, scene, extra_type, nav_mode
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

// The descriptor and the navigation mode, which a name carries but the descriptor does not hold.
struct TrafficName {
  std::shared_ptr<TrafficDrawDescriptor> traffic = std::make_shared<TrafficDrawDescriptor>();
  int nav_mode = TrafficDrawDescriptor::kDefaultNavMode;

  // Chooses between the two style records of scenes other than 0.
  bool IsNavigating() const { return nav_mode == 1; }
};

struct TrafficFormat : JsonFormat<TrafficFormat, TrafficName> {
  static constexpr std::string_view kMarker = MarkerOf(BubbleKind::kTraffic);
  template <class Keys, class Name>
  static void List(Keys& keys, Name& name) {
    keys.Text("content", name.traffic->content);
    keys.Integer("direction", name.traffic->direction);
    keys.TrueWhenZero("mode", name.traffic->mode_flag);
    keys.Text("light_text", name.traffic->light_text);
    keys.Integer("scene", name.traffic->scene);
    keys.Integer("extra_type", name.traffic->extra_type);
    keys.Integer("nav_mode", name.nav_mode, TrafficDrawDescriptor::kDefaultNavMode);
  }
};

// Navigation modes that select the same style record are written as one of them.
TrafficName Canonical(const TrafficFormat&, TrafficName name) {
  constexpr int kNotNavigating = 0;
  if (name.traffic->scene == 0) name.nav_mode = TrafficDrawDescriptor::kDefaultNavMode;
  if (!name.IsNavigating()) name.nav_mode = kNotNavigating;
  return name;
}

// The three traffic style records differ only in length.
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
  TrafficName name{Publish<TrafficDrawDescriptor>(out)};
  TrafficDrawDescriptor& traffic = *name.traffic;
  traffic.bubble_kind = kKindCode;
  const std::string_view payload = TrafficFormat::PayloadOf(resource_name);
  if (!TrafficFormat::Read(payload, name)) {
    KAVRIX_LOG(LogTagKavrixMapLayerMgr_BubbleTraffic, LogLevel::kFailure, "parse json failed: " << payload);
    return;
  }

  BubbleLayerConfigContainer config = context_->GetBubbleLayerConfigInLock();
  if (traffic.scene == 0) {
    ApplyTrafficStyle(std::move(config.traffic_style), traffic);
  } else if (name.IsNavigating()) {
    ApplyTrafficStyle(std::move(config.traffic_nav_style), traffic);
  } else {
    ApplyTrafficStyle(std::move(config.traffic_scene_style), traffic);
  }
  KAVRIX_LOG(LogTagKavrixMapLayerMgr_BubbleTraffic, LogLevel::kRoutine, *out);
}

std::string EncodeTrafficBubbleResourceName(const TrafficDrawDescriptor& traffic, int nav_mode) {
  return EncodeName<TrafficFormat>({std::make_shared<TrafficDrawDescriptor>(traffic), nav_mode});
}

constexpr BubbleKindInfo kTrafficBubbleInfo = MakeInfo<TrafficFormat>(
    BubbleKind::kTraffic, kKindCode, PayloadWay::kPrefixAndMarkerStripped, "JSON object");

}  // namespace kavrix
