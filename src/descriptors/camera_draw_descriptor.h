#ifndef KAVRIX_DESCRIPTORS_CAMERA_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_CAMERA_DRAW_DESCRIPTOR_H_

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "../util/export.h"
#include "bubble_draw_descriptor.h"

namespace kavrix {

/// One or more road cameras at one place: `.cameraBubble`. The style record is `camera_style` in scene 0 and
/// `camera_scene_style` in all others.
///
/// Base members: `scene`, `lan`, `direction`, `mode_flag`, `style_name`, `selected`, `is_force`.
class KAVRIX_EXPORT CameraDrawDescriptor : public BubbleDrawDescriptor {
 public:
  /// One camera: an element of "cameras", whatever its JSON type.
  struct Camera {
    std::int32_t type = 0;   ///< Type code: "type".
    std::int32_t speed = 0;  ///< Speed limit: "speed".
  };

  const char* TypeName() const override;
  void VisitOwnMembers(MemberVisitor& visitor) const override {
    visitor.BeginList("cameras");
    for (const Camera& camera : cameras) {
      visitor.BeginObject();
      visitor.Integer("type", camera.type);
      visitor.Integer("speed", camera.speed);
      visitor.EndObject();
    }
    visitor.EndList();
    visitor.Integer("distance", distance);
    visitor.Text("snap_text", snap_text);
    visitor.BeginList("plain_style_values");
    for (const std::uint32_t value : plain_style_values) visitor.Word("", value);
    visitor.EndList();
    visitor.Word("mode_style_value", mode_style_value);
  }

  std::vector<Camera> cameras;                        ///< The array "cameras", in its order.
  std::int32_t distance = 0;                          ///< Distance to the cameras: "distance", as it stands.
  std::string snap_text;                              ///< Text of the bubble: "snap_text".
  std::array<std::uint32_t, 3> plain_style_values{};  ///< Values 14, 15 and 16.
  std::uint32_t mode_style_value = 0;                 ///< Value 17 when `mode_flag` is set, else 18.
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_CAMERA_DRAW_DESCRIPTOR_H_
