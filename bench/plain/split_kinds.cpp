// The kinds whose payload is fields joined by "_", then "@" and a direction in front of the marker's dot.

#include <cstdlib>

#include "bench/plain/kinds.h"
#include "bench/plain/plain_fields.h"
#include "descriptors/descriptors.h"

namespace kavrix::plain {
namespace {

void ReadModeFlag(const std::string& field, BubbleDrawDescriptor& descriptor) {
  int mode = 0;
  if (ToInt(field, mode)) descriptor.mode_flag = mode == 0;
}

}  // namespace

void RouteName(const KavrixContext& context, const std::string& name, Out& out) {
  out = std::make_shared<BubbleDrawDescriptor>();
  out->bubble_kind = 0;
  const std::vector<std::string> parts = Split(AfterPrefix(name), '@');
  if (parts.size() == 2) {
    const std::vector<std::string> fields = Split(parts[0], '_');
    if (fields.size() == 3) {
      out->content = fields[0];
      ReadModeFlag(fields[1], *out);
      ToInt(fields[2], out->scene);
    }
    ReadDirection(parts[1], *out);
  }
  const BubbleLayerConfigContainer config = context.GetBubbleLayerConfigInLock();
  CommonStyle(out->scene == 0 ? config.route_name_style : config.route_name_scene_style, *out);
}

void IndoorEntries(const KavrixContext& context, const std::string& name, Out& out) {
  auto entries = std::make_shared<IndoorEntriesBubbleDrawDescriptor>();
  out = entries;
  entries->bubble_kind = 13;
  const std::vector<std::string> parts = Split(AfterPrefix(name), '@');
  if (parts.size() == 2) {
    const std::vector<std::string> fields = Split(parts[0], '_');
    if (fields.size() == 5) {
      entries->content = fields[0];
      ReadModeFlag(fields[1], *entries);
      entries->lan = fields[2];
      entries->entries_value = static_cast<std::int16_t>(std::strtoll(fields[3].c_str(), nullptr, 10));
      entries->entries_text = fields[4];
    }
    ReadDirection(parts[1], *entries);
  }
  const BubbleLayerConfigContainer config = context.GetBubbleLayerConfigInLock();
  CommonStyle(config.indoor_entries_style, *entries);
}

void Eta(const KavrixContext& context, const std::string& name, Out& out) {
  auto eta = std::make_shared<DestNameEtaDrawDescriptor>();
  out = eta;
  const std::vector<std::string> parts = Split(AfterPrefix(name), '@');
  if (parts.size() == 2) {
    const std::vector<std::string> fields = Split(parts[0], '_');
    if (fields.size() == 4) {
      eta->content = fields[0];
      ReadModeFlag(fields[1], *eta);
      ToInt(fields[3], eta->scene);
    }
    ReadDirection(parts[1], *eta);
  }
  const std::size_t bar = eta->content.rfind('|');
  if (bar != std::string::npos) eta->sub_text = eta->content.substr(bar + 1);
  eta->content = eta->content.substr(0, bar);

  const BubbleLayerConfigContainer config = context.GetBubbleLayerConfigInLock();
  const auto& style = eta->scene == 0 ? config.eta_style : config.eta_scene_style;
  eta->style_name = style.name;
  eta->style_scale[0] = style.Float(2);
  eta->style_scale[1] = style.Float(8);
  eta->second_style_value = style.Word(5);
  eta->style_word = style.Word(eta->mode_flag ? 3 : 4);
  eta->second_mode_style_value = style.Word(eta->mode_flag ? 6 : 7);
  eta->third_mode_style_value = style.Word(eta->mode_flag ? 9 : 10);
  eta->fourth_mode_style_value = style.Word(eta->mode_flag ? 11 : 12);
}

void RouteLabel(const KavrixContext& context, const std::string& name, Out& out) {
  out = std::make_shared<BubbleDrawDescriptor>();
  out->bubble_kind = 7;
  const std::vector<std::string> parts = Split(AfterPrefix(name), '@');
  if (parts.size() == 2) {
    const std::vector<std::string> fields = Split(parts[0], '_');
    if (fields.size() == 2) {
      out->content = fields[0];
      ReadModeFlag(fields[1], *out);
    }
    ReadDirection(parts[1], *out);
  }
  const BubbleLayerConfigContainer config = context.GetBubbleLayerConfigInLock();
  const auto& style = config.route_label_style;
  out->style_scale[0] = style.Float(4);
  out->style_name = style.name;
  out->style_word = style.Word(out->mode_flag ? 2 : 3);
}

void LightWait(const KavrixContext& context, const std::string& name, Out& out) {
  out = std::make_shared<LightWaitBubbleDrawDescriptor>();
  out->bubble_kind = 14;
  const std::vector<std::string> parts = Split(AfterPrefix(name), '@');
  if (parts.size() == 2) {
    const std::vector<std::string> fields = Split(parts[0], '_');
    if (fields.size() == 4) {
      out->content = fields[0];
      ReadModeFlag(fields[1], *out);
      ToInt(fields[2], out->scene);
      out->is_force = fields[3] == "1";
    }
    ReadDirection(parts[1], *out);
  }
  const BubbleLayerConfigContainer config = context.GetBubbleLayerConfigInLock();
  CommonStyle(config.light_wait_style, *out);
}

void HdLongSolid(const KavrixContext& context, const std::string& name, Out& out) {
  out = std::make_shared<HDLongSolidBubbleDrawDescriptor>();
  out->bubble_kind = 12;
  const BubbleLayerConfigContainer config = context.GetBubbleLayerConfigInLock();
  CommonStyle(config.hd_long_solid_style, *out);
  const std::vector<std::string> parts = Split(AfterPrefix(name), '@');
  if (parts.size() != 2) return;
  const std::vector<std::string> fields = Split(parts[0], '_');
  if (fields.size() >= 2) {
    out->content = fields[0];
    ReadModeFlag(fields[1], *out);
    if (fields.size() > 2) out->is_force = true;
  }
  ReadDirection(parts[1], *out);
}

}  // namespace kavrix::plain
