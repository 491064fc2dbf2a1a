#ifndef KAVRIX_CONFIG_BUBBLE_LAYER_CONFIG_CONTAINER_H_
#define KAVRIX_CONFIG_BUBBLE_LAYER_CONFIG_CONTAINER_H_

#include <array>
#include <cstddef>
#include <string_view>

#include "bubble_style_record.h"

namespace kavrix {

// The style records of the bubble layer, in the order of the configuration that fills them. Records that no
// kind reads keep their places.
struct BubbleLayerConfigContainer {
  BubbleStyleRecord<4> route_name_style;        // 1: route name, scene 0
  BubbleStyleRecord<12> traffic_style;          // 2: traffic, scene 0
  BubbleStyleRecord<8> companion_style;         // 3: companion
  BubbleStyleRecord<18> camera_style;           // 4: camera, scene 0
  BubbleStyleRecord<12> eta_style;              // 5: ETA, scene 0
  BubbleStyleRecord<12> eta_scene_style;        // 6: ETA, any other scene
  BubbleStyleRecord<4> route_label_style;       // 7: route label
  BubbleStyleRecord<18> camera_scene_style;     // 8: camera, any other scene
  BubbleStyleRecord<14> traffic_nav_style;      // 9: traffic, any other scene, "nav_mode" 1
  BubbleStyleRecord<4> route_name_scene_style;  // 10: route name, any other scene
  BubbleStyleRecord<2> turn_style;              // 11: turn, only the name
  BubbleStyleRecord<18> unread_style_12;        // 12
  BubbleStyleRecord<2> unread_style_13;         // 13
  BubbleStyleRecord<4> hd_long_solid_style;     // 14: HD long solid
  BubbleStyleRecord<2> unread_style_15;         // 15
  BubbleStyleRecord<4> indoor_entries_style;    // 16: indoor entries
  BubbleStyleRecord<4> light_wait_style;        // 17: light wait
  BubbleStyleRecord<2> unread_style_18;         // 18
  BubbleStyleRecord<2> unread_style_19;         // 19
  BubbleStyleRecord<2> unread_style_20;         // 20
  BubbleStyleRecord<11> traffic_scene_style;    // 21: traffic, any other scene, "nav_mode" not 1
};

// Calls visit(member name, record) for the 21 records in order.
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

// The values of one style record that are floats. The marker bubble's record is among the records.
struct FloatValues {
  std::string_view record;
  std::array<std::size_t, 7> numbers;  // filled up with 0
};

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

// Whether value `number`, from 1, of the style record with this member name is a float. Every other value is
// a word.
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
