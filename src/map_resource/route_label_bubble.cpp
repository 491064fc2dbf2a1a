// The route-label bubble: a label on a route.
//
//   name = prefix content "_" mode "@" direction ".labelBubble"
//
// Irregular: the word is chosen by mode, and value 4 fills the first scale alone. Head and tail are read
// independently; nothing is ever a failure.

#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_transform.h"
#include "util/key_reader.h"
#include "util/tagged_log.h"

namespace kavrix {

using logging::LogLevel;

namespace {

constexpr std::uint16_t kKindCode = 7;

template <class Fields, class Descriptor>
void RouteLabelFields(Fields& fields, Descriptor& label) {
  fields.Text(0, "content", label.content);
  fields.TrueWhenZero(1, "mode", label.mode_flag);
}

}  // namespace

void MapResourceTransform::ParseRouteLabelBubbleResourceName(const std::string& resource_name,
                                                             std::shared_ptr<BubbleDrawDescriptor>& out) {
  const auto label = Publish<BubbleDrawDescriptor>(out);
  label->bubble_kind = kKindCode;
  const auto parts = SplitFields<2>(StripPrefix(resource_name), '@');
  if (parts.count == 2) {
    const auto fields = SplitFields<2>(parts.at[0], '_');
    if (fields.count == 2) {
      FieldReader reader(fields.at.data());
      RouteLabelFields(reader, *label);
    }
    ReadDirectionTail(parts.at[1], *label);
  }

  BubbleLayerConfigContainer config = context_->GetBubbleLayerConfigInLock();
  auto& style = config.route_label_style;
  label->style_scale[0] = style.Float(4);
  label->style_name = std::move(style.name);
  label->style_word = style.Word(label->mode_flag ? 2 : 3);
  KAVRIX_LOG(LogTagKavrixMapLayerMgr_RouteLabel, LogLevel::kRoutine, *label);
}

const BubbleKindInfo kRouteLabelBubbleInfo = {"BubbleDrawDescriptor", kKindCode, PayloadWay::kPrefixStripped,
                                              "content \"_\" mode \"@\" direction", [](KeyLister& keys) {
                                                BubbleDrawDescriptor label;
                                                RouteLabelFields(keys, label);
                                                DirectionTail(keys, label);
                                              }};

}  // namespace kavrix
