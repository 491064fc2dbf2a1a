// The kinds whose payload is one JSON object between prefix and marker.

#include <locale>
#include <sstream>

#include "bench/plain/kinds.h"
#include "bench/plain/plain_fields.h"
#include "descriptors/descriptors.h"
#include "map_resource/map_resource_manager.h"

namespace kavrix::plain {

void Traffic(const KavrixContext& context, const std::string& name, Out& out) {
  auto traffic = std::make_shared<TrafficDrawDescriptor>();
  out = traffic;
  traffic->bubble_kind = 1;
  Json::Value root;
  if (!Parse(BetweenPrefixAndMarker(name, 14), root)) return;
  traffic->content = TextOr(root, "content", traffic->content);
  traffic->direction = static_cast<std::int16_t>(IntOr(root, "direction", traffic->direction));
  traffic->mode_flag = IntOr(root, "mode", traffic->mode_flag ? 1 : 0) == 0;
  traffic->light_text = TextOr(root, "light_text", traffic->light_text);
  traffic->scene = IntOr(root, "scene", traffic->scene);
  traffic->extra_type = IntOr(root, "extra_type", traffic->extra_type);
  const int nav_mode = IntOr(root, "nav_mode", 1);

  const BubbleLayerConfigContainer config = context.GetBubbleLayerConfigInLock();
  const auto apply = [&](const auto& style) {
    CommonStyle(style, *traffic);
    traffic->style_float_1 = style.Float(traffic->mode_flag ? 4 : 8);
    traffic->style_float_2 = style.Float(traffic->mode_flag ? 5 : 9);
    traffic->style_float_3 = style.Float(traffic->mode_flag ? 6 : 10);
    traffic->style_word_2 = style.Word(traffic->mode_flag ? 7 : 11);
  };
  if (traffic->scene == 0) {
    apply(config.traffic_style);
  } else if (nav_mode == 1) {
    apply(config.traffic_nav_style);
  } else {
    apply(config.traffic_scene_style);
  }
}

void Camera(const KavrixContext& context, const std::string& name, Out& out) {
  auto camera = std::make_shared<CameraDrawDescriptor>();
  out = camera;
  Json::Value root;
  if (!Parse(BetweenPrefixAndMarker(name, 13), root)) return;
  if (root.isMember("cameras") && root["cameras"].isArray()) {
    for (const Json::Value& element : root["cameras"]) {
      camera->cameras.push_back({IntOr(element, "type", 0), IntOr(element, "speed", 0)});
    }
  }
  camera->scene = IntOr(root, "scene", camera->scene);
  camera->selected = IntOr(root, "is_selected_", camera->selected ? 1 : 0) == 1;
  camera->is_force = IntOr(root, "is_force_", camera->is_force ? 1 : 0) == 1;
  camera->snap_text = TextOr(root, "snap_text", camera->snap_text);
  camera->lan = TextOr(root, "lan", camera->lan);
  camera->mode_flag = IntOr(root, "mode", camera->mode_flag ? 1 : 0) == 0;
  camera->distance = IntOr(root, "distance", camera->distance);
  camera->direction = static_cast<std::int16_t>(IntOr(root, "direction", camera->direction));

  const BubbleLayerConfigContainer config = context.GetBubbleLayerConfigInLock();
  const auto& style = camera->scene == 0 ? config.camera_style : config.camera_scene_style;
  for (std::size_t i = 0; i < 3; ++i) camera->plain_style_values[i] = style.Word(14 + i);
  camera->mode_style_value = style.Word(camera->mode_flag ? 17 : 18);
  camera->style_name = style.name;
}

void RouteExplain(const std::string& name, Out& out) {
  auto explain = std::make_shared<ExplainBubbleDrawDescriptor>();
  out = explain;
  Json::Value root;
  if (!Parse(BetweenPrefixAndMarker(name, 19), root)) return;
  if (root.isMember("second_content") && root["second_content"].isArray()) {
    for (const Json::Value& element : root["second_content"]) {
      if (element.isString()) explain->second_content.push_back(element.asString());
    }
  }
  explain->scene = IntOr(root, "scene", explain->scene);
  explain->mode_flag = IntOr(root, "mode", explain->mode_flag ? 1 : 0) == 0;
  explain->uid = TextOr(root, "uid", explain->uid);
  explain->explain_content = TextOr(root, "content", explain->explain_content);
  explain->icon = TextOr(root, "icon", explain->icon);
  explain->lan = TextOr(root, "lan", explain->lan);
  explain->second_type = IntOr(root, "second_type", explain->second_type);
  explain->scene_type = IntOr(root, "scene_type", explain->scene_type);
  explain->bubble_type = IntOr(root, "bubble_type", explain->bubble_type);
  explain->direction = static_cast<std::int16_t>(IntOr(root, "direction", explain->direction));
}

void MarkerBubble(const MarkerBubbleConfig& config, const std::string& name, Out& out) {
  out = std::make_shared<BubbleDrawDescriptor>();
  out->bubble_kind = 0;
  Json::Value root;
  if (!Parse(BetweenPrefixAndMarker(name, 13), root)) return;
  out->scene = IntOr(root, "scene", out->scene);
  out->mode_flag = IntOr(root, "mode", out->mode_flag ? 1 : 0) == 0;
  out->direction = static_cast<std::int16_t>(IntOr(root, "direction", out->direction));
  out->content = TextOr(root, "content", out->content);
  CommonStyle(config, *out);
}

void ViaCircle(const std::string& name, Out& out) {
  auto via = std::make_shared<ViaPointDrawDescriptor>();
  out = via;
  via->bubble_kind = 20;
  Json::Value root;
  if (!Parse(BetweenPrefixAndMarker(name, 16), root)) return;
  via->scene = IntOr(root, "scene", via->scene);
  via->lan = TextOr(root, "lan", via->lan);
  via->mode_flag = IntOr(root, "mode", via->mode_flag ? 1 : 0) == 0;
  via->direction = static_cast<std::int16_t>(IntOr(root, "direction", via->direction));
  via->route_id = TextOr(root, "route_id", via->route_id);
  via->index = IntOr(root, "index", via->index);
  via->is_selected = IntOr(root, "is_selected", via->is_selected ? 1 : 0) != 0;
  via->is_reached = IntOr(root, "is_reached", via->is_reached ? 1 : 0) != 0;
  via->is_main_map = IntOr(root, "is_main_map", via->is_main_map ? 1 : 0) != 0;
  via->resource_id = IntOr(root, "resource_id", via->resource_id);
}

void Turn(const KavrixContext& context, const std::string& name, Out& out) {
  auto turn = std::make_shared<TurnArrowBubbleDrawDescriptor>();
  out = turn;
  const std::string payload = BetweenPrefixAndMarker(name, 11);
  turn->bubble_kind = 10;
  turn->style_name = context.GetBubbleLayerConfigInLock().turn_style.name;
  Json::Value root;
  if (!Parse(payload, root)) return;
  turn->is_force = IntOr(root, "is_force_", turn->is_force ? 1 : 0) == 1;
  turn->type = static_cast<std::int16_t>(IntOr(root, "type", turn->type));
  turn->direction = static_cast<std::int16_t>(IntOr(root, "direction", turn->direction));
  turn->mode_flag = IntOr(root, "mode", turn->mode_flag ? 1 : 0) == 0;
  turn->scene = IntOr(root, "scene", turn->scene);
  turn->lan = TextOr(root, "lan", turn->lan);
  turn->distance = IntOr(root, "distance", turn->distance);
}

void UndergroundPark(const std::string& name, Out& out) {
  out = std::make_shared<BubbleDrawDescriptor>();
  out->bubble_kind = 25;
  Json::Value root;
  if (!Parse(BetweenPrefixAndMarker(name, 22), root)) return;
  out->lan = TextOr(root, "lan", out->lan);
  out->mode_flag = IntOr(root, "mode", out->mode_flag ? 1 : 0) == 0;
  out->direction = static_cast<std::int16_t>(IntOr(root, "direction", out->direction));
  out->content = TextOr(root, "name", out->content);
}

namespace {

void Force(const std::string& payload, const char* image_key, Out& out) {
  Json::Value root;
  if (!Parse(payload, root)) return;
  out->mode_flag = IntOr(root, "mode", out->mode_flag ? 1 : 0) == 0;
  out->type = static_cast<std::int16_t>(IntOr(root, "type", out->type));
  out->content = image_key;
  out->is_force = true;
}

}  // namespace

void ForceDot(const std::string& name, Out& out) {
  out = std::make_shared<BubbleDrawDescriptor>();
  out->bubble_kind = 27;
  Force(BetweenPrefixAndMarker(name, 15), "ForceDot", out);
}

void ForcePoll(const std::string& name, Out& out) {
  out = std::make_shared<BubbleDrawDescriptor>();
  out->bubble_kind = 28;
  Force(BetweenPrefixAndMarker(name, 16), "ForcePoll", out);
}

void MarkerName(const std::string& name, Out& out) {
  Json::Value root;
  if (!Parse(BetweenPrefixAndMarker(name, 7), root)) return;
  auto marker = std::make_shared<MarkerDrawDescriptor>();
  out = marker;
  marker->bubble_kind = 21;
  marker->lan = TextOr(root, "lan", marker->lan);
  marker->mode_flag = IntOr(root, "mode", marker->mode_flag ? 1 : 0) == 0;
  marker->scene = IntOr(root, "scene", marker->scene);
  marker->direction = static_cast<std::int16_t>(IntOr(root, "direction", marker->direction));
  marker->marker_type = static_cast<std::int16_t>(IntOr(root, "marker_type", marker->marker_type));
  marker->name = TextOr(root, "name", marker->name);
  marker->resource_id = IntOr(root, "resource_id", marker->resource_id);
  marker->is_main_map = IntOr(root, "is_main_map", marker->is_main_map ? 1 : 0) != 0;
  marker->is_force = true;

  std::ostringstream stream;
  stream.imbue(std::locale::classic());
  stream << MarkerType(marker->marker_type);
  std::string type = stream.str();
  for (char& c : type) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + ('a' - 'A'));
  }
  marker->content = MapResourceManager::kavrix_resource_prefix + type + "_" + marker->name;
}

}  // namespace kavrix::plain
