// The HD long-solid bubble: a long solid line ahead, in HD guidance.
//
//   name = prefix content "_" mode { "_" force } "@" direction ".hdLongSolidBubble"
//
// Irregular: two fields are enough, and a third sets the force flag whatever it holds; more are passed over.
// The style is taken before the payload is looked at. Head and tail are read independently; nothing is ever a
// failure.

#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_transform.h"
#include "util/key_reader.h"
#include "util/tagged_log.h"

namespace kavrix {

using logging::LogLevel;

namespace {

constexpr std::uint16_t kKindCode = 12;

template <class Fields, class Descriptor>
void HdLongSolidFields(Fields& fields, Descriptor& bubble) {
  fields.Text(0, "content", bubble.content);
  fields.TrueWhenZero(1, "mode", bubble.mode_flag);
}

}  // namespace

void MapResourceTransform::ParseHdLongSolidBubbleResourceName(const std::string& resource_name,
                                                              std::shared_ptr<BubbleDrawDescriptor>& out) {
  const auto bubble = Publish<HDLongSolidBubbleDrawDescriptor>(out);
  bubble->bubble_kind = kKindCode;
  BubbleLayerConfigContainer config = context_->GetBubbleLayerConfigInLock();
  ApplyCommonStyle(std::move(config.hd_long_solid_style), *bubble);

  const auto parts = SplitFields<2>(StripPrefix(resource_name), '@');
  if (parts.count == 2) {
    const auto fields = SplitFields<3>(parts.at[0], '_');
    if (fields.count >= 2) {
      FieldReader reader(fields.at.data());
      HdLongSolidFields(reader, *bubble);
      if (fields.count > 2) bubble->is_force = true;
    }
    ReadDirectionTail(parts.at[1], *bubble);
  }
  KAVRIX_LOG(LogTagKavrixMapLayerMgr_LongSolid, LogLevel::kRoutine, *out);
}

const BubbleKindInfo kHdLongSolidBubbleInfo = {
    "HDLongSolidBubbleDrawDescriptor", kKindCode, PayloadWay::kPrefixStripped,
    "content \"_\" mode { \"_\" force } \"@\" direction", [](KeyLister& keys) {
      HDLongSolidBubbleDrawDescriptor bubble;
      HdLongSolidFields(keys, bubble);
      keys.Add("force", "flag", "true when the field is there");
      DirectionTail(keys, bubble);
    }};

}  // namespace kavrix
