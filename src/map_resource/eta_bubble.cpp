// The ETA bubble: the destination's name and a second line, such as the time of arrival.
//
//   name = prefix content ["|" sub_text] "_" mode "_" unread "_" scene "@" direction ".etaBubble"
//
// Irregular: the name is logged before it is read. The content is split at its last "|". Each of the two
// scales has a value of its own, and the mode chooses the word. Head and tail are read independently, and no
// name is logged as a failure.

#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_transform.h"
#include "map_resource/name_codec.h"
#include "map_resource/resource_name_encoder.h"
#include "util/tagged_log.h"

namespace kavrix {

using logging::LogLevel;

namespace {

// Undoes TextAfterBar. Content that holds a "|" gets another one after it, even when `sub_text` is empty.
std::string WithSubText(const DestNameEtaDrawDescriptor& eta) {
  const bool needs_bar = !eta.sub_text.empty() || eta.content.find('|') != std::string::npos;
  return needs_bar ? eta.content + "|" + eta.sub_text : eta.content;
}

struct EtaFormat : FieldsFormat<EtaFormat, DestNameEtaDrawDescriptor, 4> {
  static constexpr std::string_view kMarker = MarkerOf(BubbleKind::kEta);
  template <class Fields, class Eta>
  static void List(Fields& fields, Eta& eta) {
    fields.Text(0, "content", eta.content);
    fields.TrueWhenZero(1, "mode", eta.mode_flag);
    fields.Integer(3, "scene", eta.scene);
    fields.TextAfterBar(0, "sub_text", eta.content, eta.sub_text);
  }
};

Payload PayloadFor(const EtaFormat&, const KeyWriter&, const DestNameEtaDrawDescriptor& eta) {
  DestNameEtaDrawDescriptor joined = eta;
  joined.content = WithSubText(eta);
  KeyWriter fields(KeyWriter::Escapes::kForNames);
  EtaFormat::List(fields, joined);
  Payload payload =
      WithDirection(FieldsPayload(fields, EtaFormat::kFieldCount, EtaFormat::kMarker), eta.direction);
  payload.bad = FindBadText("content", eta.content, EtaFormat::kMarker);
  if (!payload.bad) payload.bad = FindBadText("sub_text", eta.sub_text, EtaFormat::kMarker);
  const std::size_t bar = eta.sub_text.rfind('|');
  if (!payload.bad && bar != std::string::npos)
    payload.bad = BadText{"sub_text", eta.sub_text, bar, "ends the content"};
  return payload;
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
  EtaFormat::Read(EtaFormat::PayloadOf(resource_name), *eta);

  BubbleLayerConfigContainer config = context_->GetBubbleLayerConfigInLock();
  ApplyEtaStyle(eta->scene == 0 ? config.eta_style : config.eta_scene_style, *eta);
  KAVRIX_LOG(LogTagKavrixMapLayerMgr_DestNameEta, LogLevel::kRoutine, *eta);
}

std::string EncodeEtaBubbleResourceName(const DestNameEtaDrawDescriptor& eta) {
  return EncodeName<EtaFormat>(eta);
}

constexpr BubbleKindInfo kEtaBubbleInfo =
    MakeInfo<EtaFormat>(BubbleKind::kEta, std::nullopt, PayloadWay::kPrefixStripped,
                        "content [\"|\" sub_text] \"_\" mode \"_\" unread \"_\" scene \"@\" direction");

}  // namespace kavrix
