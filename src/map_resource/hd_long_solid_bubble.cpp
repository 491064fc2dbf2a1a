// The HD long-solid bubble: a long solid line ahead, in HD guidance.
//
//   name = prefix content "_" mode { "_" force } "@" direction ".hdLongSolidBubble"
//
// Irregular: two fields are enough; a third sets the force flag, whatever it holds, and more are ignored. The
// style is filled before the payload is read. Head and tail are read independently, and no name is logged as
// a failure.

#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_transform.h"
#include "map_resource/name_codec.h"
#include "map_resource/resource_name_encoder.h"
#include "util/tagged_log.h"

namespace kavrix {

using logging::LogLevel;

namespace {

constexpr std::uint16_t kKindCode = 12;

struct HdLongSolidFormat : FieldsFormat<HdLongSolidFormat, HDLongSolidBubbleDrawDescriptor, 3, 2> {
  static constexpr std::string_view kMarker = MarkerOf(BubbleKind::kHdLongSolid);
  template <class Fields, class Descriptor>
  static void List(Fields& fields, Descriptor& bubble) {
    fields.Text(0, "content", bubble.content);
    fields.TrueWhenZero(1, "mode", bubble.mode_flag);
    fields.TrueWhenThere(2, "force", bubble.is_force);
  }
};

Payload PayloadFor(const HdLongSolidFormat&, const KeyWriter& written,
                   const HDLongSolidBubbleDrawDescriptor& bubble) {
  Payload payload = FieldsPayload(written, 2, HdLongSolidFormat::kMarker);
  if (bubble.is_force) payload.text += "_1";
  return WithDirection(std::move(payload), bubble.direction);
}

}  // namespace

void MapResourceTransform::ParseHdLongSolidBubbleResourceName(const std::string& resource_name,
                                                              std::shared_ptr<BubbleDrawDescriptor>& out) {
  const auto bubble = Publish<HDLongSolidBubbleDrawDescriptor>(out);
  bubble->bubble_kind = kKindCode;
  BubbleLayerConfigContainer config = context_->GetBubbleLayerConfigInLock();
  ApplyCommonStyle(std::move(config.hd_long_solid_style), *bubble);

  HdLongSolidFormat::Read(HdLongSolidFormat::PayloadOf(resource_name), *bubble);
  KAVRIX_LOG(LogTagKavrixMapLayerMgr_LongSolid, LogLevel::kRoutine, *out);
}

std::string EncodeHdLongSolidBubbleResourceName(const HDLongSolidBubbleDrawDescriptor& bubble) {
  return EncodeName<HdLongSolidFormat>(bubble);
}

constexpr BubbleKindInfo kHdLongSolidBubbleInfo =
    MakeInfo<HdLongSolidFormat>(BubbleKind::kHdLongSolid, kKindCode, PayloadWay::kPrefixStripped,
                                "content \"_\" mode { \"_\" force } \"@\" direction");

}  // namespace kavrix
