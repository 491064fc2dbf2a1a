// The route-name bubble: a route's name beside the route.
//
//   name = prefix content "_" mode "_" scene "@" direction ".nameBubble"
//
// Head (before "@") and tail are read independently: one of the wrong shape does not stop the other. No name
// is logged as a failure: what does not fit leaves its members unchanged, and the style is filled in any
// case.

#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_transform.h"
#include "map_resource/name_codec.h"
#include "map_resource/resource_name_encoder.h"
#include "util/tagged_log.h"

namespace kavrix {

using logging::LogLevel;

namespace {

constexpr std::uint16_t kKindCode = 0;

struct RouteNameFormat : FieldsFormat<RouteNameFormat, BubbleDrawDescriptor, 3> {
  static constexpr std::string_view kMarker = MarkerOf(BubbleKind::kRouteName);
  template <class Fields, class Descriptor>
  static void List(Fields& fields, Descriptor& bubble) {
    fields.Text(0, "content", bubble.content);
    fields.TrueWhenZero(1, "mode", bubble.mode_flag);
    fields.Integer(2, "scene", bubble.scene);
  }
};

}  // namespace

void MapResourceTransform::ParseRouteNameBubbleResourceName(const std::string& resource_name,
                                                            std::shared_ptr<BubbleDrawDescriptor>& out) {
  const auto bubble = Publish<BubbleDrawDescriptor>(out);
  bubble->bubble_kind = kKindCode;
  RouteNameFormat::Read(RouteNameFormat::PayloadOf(resource_name), *bubble);

  BubbleLayerConfigContainer config = context_->GetBubbleLayerConfigInLock();
  ApplyCommonStyle(std::move(bubble->scene == 0 ? config.route_name_style : config.route_name_scene_style),
                   *bubble);
  KAVRIX_LOG(LogTagKavrixMapLayerMgr_BubbleName, LogLevel::kRoutine, *bubble);
}

std::string EncodeRouteNameBubbleResourceName(const BubbleDrawDescriptor& bubble) {
  return EncodeName<RouteNameFormat>(bubble);
}

constexpr BubbleKindInfo kRouteNameBubbleInfo =
    MakeInfo<RouteNameFormat>(BubbleKind::kRouteName, kKindCode, PayloadWay::kPrefixStripped,
                              "content \"_\" mode \"_\" scene \"@\" direction");

}  // namespace kavrix
