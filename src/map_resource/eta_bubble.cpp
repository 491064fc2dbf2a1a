// The ETA bubble: the destination's name with a second text, such as the time of arrival.
//
//   name = prefix content ["|" sub_text] "_" mode "_" unread "_" scene "@" direction ".etaBubble"
//
// Irregular: the name is logged before anything else. The content is split at its last "|", also when nothing
// was read. The two scales are two values, the word is chosen by mode. Head and tail are read independently;
// nothing is ever a failure.

#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_transform.h"
#include "util/key_reader.h"
#include "util/tagged_log.h"

namespace kavrix {

using logging::LogLevel;

namespace {

template <class Fields, class Eta>
void EtaFields(Fields& fields, Eta& eta) {
  fields.Text(0, "content", eta.content);
  fields.TrueWhenZero(1, "mode", eta.mode_flag);
  fields.Integer(3, "scene", eta.scene);
}

void SplitSubText(DestNameEtaDrawDescriptor& eta) {
  const std::size_t bar = eta.content.rfind('|');
  if (bar == std::string::npos) return;
  eta.sub_text = eta.content.substr(bar + 1);
  eta.content.erase(bar);
}

void ApplyEtaStyle(BubbleStyleRecord<12>& style, DestNameEtaDrawDescriptor& eta) {
  eta.style_name = std::move(style.name);
  eta.style_scale = {style.Float(2), style.Float(8)};
  eta.second_style_value = style.Word(5);
  eta.style_word = style.Word(eta.mode_flag ? 3 : 4);
  eta.second_mode_style_value = style.Word(eta.mode_flag ? 6 : 7);
  eta.third_mode_style_value = style.Word(eta.mode_flag ? 9 : 10);
  eta.fourth_mode_style_value = style.Word(eta.mode_flag ? 11 : 12);
}

}  // namespace

void MapResourceTransform::ParseEtaBubbleResourceName(const std::string& resource_name,
                                                      std::shared_ptr<BubbleDrawDescriptor>& out) {
  KAVRIX_LOG(LogTagKavrixMapLayerMgr_DestNameEta, LogLevel::kRoutine, "resource_name:" << resource_name);
  const auto eta = Publish<DestNameEtaDrawDescriptor>(out);
  const auto parts = SplitFields<2>(StripPrefix(resource_name), '@');
  if (parts.count == 2) {
    const auto fields = SplitFields<4>(parts.at[0], '_');
    if (fields.count == 4) {
      FieldReader reader(fields.at.data());
      EtaFields(reader, *eta);
    }
    ReadDirectionTail(parts.at[1], *eta);
  }
  SplitSubText(*eta);

  BubbleLayerConfigContainer config = context_->GetBubbleLayerConfigInLock();
  ApplyEtaStyle(eta->scene == 0 ? config.eta_style : config.eta_scene_style, *eta);
  KAVRIX_LOG(LogTagKavrixMapLayerMgr_DestNameEta, LogLevel::kRoutine, *eta);
}

const BubbleKindInfo kEtaBubbleInfo = {
    "DestNameEtaDrawDescriptor", std::nullopt, PayloadWay::kPrefixStripped,
    "content [\"|\" sub_text] \"_\" mode \"_\" unread \"_\" scene \"@\" direction", [](KeyLister& keys) {
      DestNameEtaDrawDescriptor eta;
      EtaFields(keys, eta);
      keys.Add("sub_text", "text", "behind the last \"|\" of the content");
      DirectionTail(keys, eta);
    }};

}  // namespace kavrix
