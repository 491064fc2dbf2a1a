#ifndef KAVRIX_BENCH_KEY_LISTS_H_
#define KAVRIX_BENCH_KEY_LISTS_H_

// The keys of P1, P2 and P3 in the library's order, for any reader with the verbs of JsonKeyReader: all JSON
// readers in the comparison read the same keys into the same descriptors.
namespace kavrix::bench {

struct TrafficKeys {
  template <class Keys, class Traffic>
  void operator()(Keys& keys, Traffic& traffic) const {
    int nav_mode = 1;
    keys.Text("content", traffic.content);
    keys.Integer("direction", traffic.direction);
    keys.TrueWhenZero("mode", traffic.mode_flag);
    keys.Text("light_text", traffic.light_text);
    keys.Integer("scene", traffic.scene);
    keys.Integer("extra_type", traffic.extra_type);
    keys.Integer("nav_mode", nav_mode);
  }
};

struct CameraKeys {
  template <class Keys, class Camera>
  void operator()(Keys& keys, Camera& camera) const {
    keys.Objects("cameras", camera.cameras, [](auto& item_keys, auto& item) {
      item_keys.Integer("type", item.type);
      item_keys.Integer("speed", item.speed);
    });
    keys.Integer("scene", camera.scene);
    keys.TrueWhenOne("is_selected_", camera.selected);
    keys.TrueWhenOne("is_force_", camera.is_force);
    keys.Text("snap_text", camera.snap_text);
    keys.Text("lan", camera.lan);
    keys.TrueWhenZero("mode", camera.mode_flag);
    keys.Integer("distance", camera.distance);
    keys.Integer("direction", camera.direction);
  }
};

struct LightsKeys {
  template <class Keys, class Lights>
  void operator()(Keys& keys, Lights& lights) const {
    keys.TrueWhenOne("is_force_", lights.is_force);
    keys.Integer("scene", lights.scene);
    keys.TrueWhenZero("mode", lights.mode_flag);
    keys.Integer("style", lights.style);
    keys.Text("id", lights.id);
    keys.TrueWhenOne("is_animation", lights.is_animation);
    keys.Objects("light_descriptors", lights.light_descriptors, [](auto& item_keys, auto& light) {
      item_keys.Integer("light_type", light.light_type);
      item_keys.Integer("turn_arrow_type", light.turn_arrow_type);
      item_keys.Integer("remain_time", light.remain_time);
      item_keys.Text("text", light.text);
      item_keys.Integer("total_time", light.total_time);
    });
  }
};

}  // namespace kavrix::bench

#endif  // KAVRIX_BENCH_KEY_LISTS_H_
