// The route-label bubble: a label on a route.
//
//   name = prefix content "_" mode "@" direction ".labelBubble"
//
// Irregular: the mode chooses the word, and value 4 fills only the first scale. Head and tail are read
// independently, and no name is logged as a failure.

#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_transform.h"
#include "map_resource/name_codec.h"
#include "map_resource/resource_name_encoder.h"
#include "util/tagged_log.h"

namespace kavrix {

using logging::LogLevel;

namespace {

constexpr std::uint16_t kKindCode = 7;

struct RouteLabelFormat : FieldsFormat<RouteLabelFormat, BubbleDrawDescriptor, 2> {
  static constexpr std::string_view kMarker = MarkerOf(BubbleKind::kRouteLabel);
  template <class Fields, class Descriptor>
  static void List(Fields& fields, Descriptor& label) {
    fields.Text(0, "content", label.content);
    fields.TrueWhenZero(1, "mode", label.mode_flag);
  }
};

}  // namespace

void MapResourceTransform::ParseRouteLabelBubbleResourceName(const std::string& resource_name,
                                                             std::shared_ptr<BubbleDrawDescriptor>& out) {
  const auto label = Publish<BubbleDrawDescriptor>(out);
  label->bubble_kind = kKindCode;
  RouteLabelFormat::Read(RouteLabelFormat::PayloadOf(resource_name), *label);

  BubbleLayerConfigContainer config = context_->GetBubbleLayerConfigInLock();
  auto& style = config.route_label_style;
  label->style_scale[0] = style.Float(4);
  label->style_name = std::move(style.name);
  label->style_word = style.Word(label->mode_flag ? 2 : 3);
  KAVRIX_LOG(LogTagKavrixMapLayerMgr_RouteLabel, LogLevel::kRoutine, *label);
}

std::string EncodeRouteLabelBubbleResourceName(const BubbleDrawDescriptor& label) {
  return EncodeName<RouteLabelFormat>(label);
}

constexpr BubbleKindInfo kRouteLabelBubbleInfo = MakeInfo<RouteLabelFormat>(
    BubbleKind::kRouteLabel, kKindCode, PayloadWay::kPrefixStripped, "content \"_\" mode \"@\" direction");

}  // namespace kavrix
