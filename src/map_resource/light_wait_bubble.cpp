// The light-wait bubble: shown while waiting at a traffic light.
//
//   name = prefix content "_" mode "_" scene "_" force "@" direction ".lightWaitBubble"
//
// Irregular: force is true when the field is exactly "1", and false otherwise. The tag lacks the module word.
// Head and tail are read independently, and no name is logged as a failure.

#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_transform.h"
#include "map_resource/name_codec.h"
#include "map_resource/resource_name_encoder.h"
#include "util/tagged_log.h"

namespace kavrix {

using logging::LogLevel;

namespace {

constexpr std::uint16_t kKindCode = 14;

struct LightWaitFormat : FieldsFormat<LightWaitFormat, LightWaitBubbleDrawDescriptor, 4> {
  static constexpr std::string_view kMarker = MarkerOf(BubbleKind::kLightWait);
  template <class Fields, class Descriptor>
  static void List(Fields& fields, Descriptor& bubble) {
    fields.Text(0, "content", bubble.content);
    fields.TrueWhenZero(1, "mode", bubble.mode_flag);
    fields.Integer(2, "scene", bubble.scene);
    fields.TrueWhenOne(3, "force", bubble.is_force);
  }
};

}  // namespace

void MapResourceTransform::ParseLightWaitBubbleResourceName(const std::string& resource_name,
                                                            std::shared_ptr<BubbleDrawDescriptor>& out) {
  const auto bubble = Publish<LightWaitBubbleDrawDescriptor>(out);
  bubble->bubble_kind = kKindCode;
  LightWaitFormat::Read(LightWaitFormat::PayloadOf(resource_name), *bubble);

  BubbleLayerConfigContainer config = context_->GetBubbleLayerConfigInLock();
  ApplyCommonStyle(std::move(config.light_wait_style), *bubble);
  KAVRIX_LOG(LogTagMapLayerMgr_LightWait, LogLevel::kRoutine, *out);
}

std::string EncodeLightWaitBubbleResourceName(const LightWaitBubbleDrawDescriptor& bubble) {
  return EncodeName<LightWaitFormat>(bubble);
}

constexpr BubbleKindInfo kLightWaitBubbleInfo =
    MakeInfo<LightWaitFormat>(BubbleKind::kLightWait, kKindCode, PayloadWay::kPrefixStripped,
                              "content \"_\" mode \"_\" scene \"_\" force \"@\" direction");

}  // namespace kavrix
