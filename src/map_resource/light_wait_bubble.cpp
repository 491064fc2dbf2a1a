// The light-wait bubble: shown while waiting at a traffic light.
//
//   name = prefix content "_" mode "_" scene "_" force "@" direction ".lightWaitBubble"
//
// Irregular: force is set by the one-character text "1" and cleared by any other. The tag lacks the module
// word. Head and tail are read independently; nothing is ever a failure.

#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_transform.h"
#include "util/key_reader.h"
#include "util/tagged_log.h"

namespace kavrix {

using logging::LogLevel;

namespace {

constexpr std::uint16_t kKindCode = 14;

template <class Fields, class Descriptor>
void LightWaitFields(Fields& fields, Descriptor& bubble) {
  fields.Text(0, "content", bubble.content);
  fields.TrueWhenZero(1, "mode", bubble.mode_flag);
  fields.Integer(2, "scene", bubble.scene);
}

}  // namespace

void MapResourceTransform::ParseLightWaitBubbleResourceName(const std::string& resource_name,
                                                            std::shared_ptr<BubbleDrawDescriptor>& out) {
  const auto bubble = Publish<LightWaitBubbleDrawDescriptor>(out);
  bubble->bubble_kind = kKindCode;
  const auto parts = SplitFields<2>(StripPrefix(resource_name), '@');
  if (parts.count == 2) {
    const auto fields = SplitFields<4>(parts.at[0], '_');
    if (fields.count == 4) {
      FieldReader reader(fields.at.data());
      LightWaitFields(reader, *bubble);
      bubble->is_force = fields.at[3] == "1";
    }
    ReadDirectionTail(parts.at[1], *bubble);
  }

  BubbleLayerConfigContainer config = context_->GetBubbleLayerConfigInLock();
  ApplyCommonStyle(std::move(config.light_wait_style), *bubble);
  KAVRIX_LOG(LogTagMapLayerMgr_LightWait, LogLevel::kRoutine, *out);
}

const BubbleKindInfo kLightWaitBubbleInfo = {
    "LightWaitBubbleDrawDescriptor", kKindCode, PayloadWay::kPrefixStripped,
    "content \"_\" mode \"_\" scene \"_\" force \"@\" direction", [](KeyLister& keys) {
      LightWaitBubbleDrawDescriptor bubble;
      LightWaitFields(keys, bubble);
      keys.Add("force", "flag", "true when the text is \"1\"");
      DirectionTail(keys, bubble);
    }};

}  // namespace kavrix
