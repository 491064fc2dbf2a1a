#ifndef KAVRIX_CONFIG_BUBBLE_LAYER_CONFIG_CONTAINER_H_
#define KAVRIX_CONFIG_BUBBLE_LAYER_CONFIG_CONTAINER_H_

#include <array>
#include <cstddef>
#include <string_view>

#include "bubble_style_record.h"

namespace kavrix {

/// The style records of the bubble layer, in the order of the configuration that fills them. Records that no
/// kind reads keep their places.
struct BubbleLayerConfigContainer {
  BubbleStyleRecord<4> route_name_style;        ///< Record 1: route name, scene 0.
  BubbleStyleRecord<12> traffic_style;          ///< Record 2: traffic, scene 0.
  BubbleStyleRecord<8> companion_style;         ///< Record 3: companion.
  BubbleStyleRecord<18> camera_style;           ///< Record 4: camera, scene 0.
  BubbleStyleRecord<12> eta_style;              ///< Record 5: ETA, scene 0.
  BubbleStyleRecord<12> eta_scene_style;        ///< Record 6: ETA, any other scene.
  BubbleStyleRecord<4> route_label_style;       ///< Record 7: route label.
  BubbleStyleRecord<18> camera_scene_style;     ///< Record 8: camera, any other scene.
  BubbleStyleRecord<14> traffic_nav_style;      ///< Record 9: traffic, any other scene, "nav_mode" 1.
  BubbleStyleRecord<4> route_name_scene_style;  ///< Record 10: route name, any other scene.
  BubbleStyleRecord<2> turn_style;              ///< Record 11: turn, only the name.
  BubbleStyleRecord<18> unread_style_12;        ///< Record 12, which no kind reads.
  BubbleStyleRecord<2> unread_style_13;         ///< Record 13, which no kind reads.
  BubbleStyleRecord<4> hd_long_solid_style;     ///< Record 14: HD long solid.
  BubbleStyleRecord<2> unread_style_15;         ///< Record 15, which no kind reads.
  BubbleStyleRecord<4> indoor_entries_style;    ///< Record 16: indoor entries.
  BubbleStyleRecord<4> light_wait_style;        ///< Record 17: light wait.
  BubbleStyleRecord<2> unread_style_18;         ///< Record 18, which no kind reads.
  BubbleStyleRecord<2> unread_style_19;         ///< Record 19, which no kind reads.
  BubbleStyleRecord<2> unread_style_20;         ///< Record 20, which no kind reads.
  BubbleStyleRecord<11> traffic_scene_style;    ///< Record 21: traffic, any other scene, "nav_mode" not 1.
};

/// Calls `visit(member_name, record)` for the 21 records in order.
template <class Config, class Visit>
void ForEachStyleRecord(Config& config, Visit visit) {
  visit("route_name_style", config.route_name_style);
  visit("traffic_style", config.traffic_style);
  visit("companion_style", config.companion_style);
  visit("camera_style", config.camera_style);
  visit("eta_style", config.eta_style);
  visit("eta_scene_style", config.eta_scene_style);
  visit("route_label_style", config.route_label_style);
  visit("camera_scene_style", config.camera_scene_style);
  visit("traffic_nav_style", config.traffic_nav_style);
  visit("route_name_scene_style", config.route_name_scene_style);
  visit("turn_style", config.turn_style);
  visit("unread_style_12", config.unread_style_12);
  visit("unread_style_13", config.unread_style_13);
  visit("hd_long_solid_style", config.hd_long_solid_style);
  visit("unread_style_15", config.unread_style_15);
  visit("indoor_entries_style", config.indoor_entries_style);
  visit("light_wait_style", config.light_wait_style);
  visit("unread_style_18", config.unread_style_18);
  visit("unread_style_19", config.unread_style_19);
  visit("unread_style_20", config.unread_style_20);
  visit("traffic_scene_style", config.traffic_scene_style);
}

/// Says which values of one style record are floats.
struct FloatValues {
  std::string_view record;             ///< The record's member name, or "marker_bubble".
  std::array<std::size_t, 7> numbers;  ///< The values' numbers, from 1; filled up with 0.
};

/// All style records that have float values, the marker bubble's among them.
inline constexpr std::array<FloatValues, 13> kFloatValues = {{
    {"route_name_style", {3}},
    {"traffic_style", {3, 4, 5, 6, 8, 9, 10}},
    {"companion_style", {6, 7}},
    {"eta_style", {2, 8}},
    {"eta_scene_style", {2, 8}},
    {"route_label_style", {4}},
    {"traffic_nav_style", {3, 4, 5, 6, 8, 9, 10}},
    {"route_name_scene_style", {3}},
    {"hd_long_solid_style", {3}},
    {"indoor_entries_style", {3}},
    {"light_wait_style", {3}},
    {"traffic_scene_style", {3, 4, 5, 6, 8, 9, 10}},
    {"marker_bubble", {3}},
}};

/// Returns true when value `number`, from 1, of the style record with this member name ("marker_bubble" for
/// that of marker bubbles) is a float. Every other value is a word.
constexpr bool IsFloatValue(std::string_view record, std::size_t number) {
  for (const FloatValues& floats : kFloatValues) {
    for (const std::size_t float_number : floats.numbers) {
      if (floats.record == record && float_number == number) return number != 0;
    }
  }
  return false;
}

}  // namespace kavrix

#endif  // KAVRIX_CONFIG_BUBBLE_LAYER_CONFIG_CONTAINER_H_
