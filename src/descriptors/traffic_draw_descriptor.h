#ifndef KAVRIX_DESCRIPTORS_TRAFFIC_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_TRAFFIC_DRAW_DESCRIPTOR_H_

#include <cstdint>
#include <string>

#include "../util/export.h"
#include "bubble_draw_descriptor.h"

namespace kavrix {

/// The label on a route that shows the traffic ahead: `.trafficBubble`. The style record is `traffic_style`
/// in scene 0; in all other scenes `traffic_nav_style` when "nav_mode" is 1, else `traffic_scene_style`.
///
/// Base members: `scene`, `content`, `bubble_kind` (1), `direction`, `mode_flag`, `style_name`, `style_word`,
/// `style_scale`.
class KAVRIX_EXPORT TrafficDrawDescriptor : public BubbleDrawDescriptor {
 public:
  const char* TypeName() const override;
  void VisitOwnMembers(MemberVisitor& visitor) const override {
    visitor.Text("light_text", light_text);
    visitor.Integer("extra_type", extra_type);
    visitor.Real("style_float_1", style_float_1);
    visitor.Real("style_float_2", style_float_2);
    visitor.Real("style_float_3", style_float_3);
    visitor.Word("style_word_2", style_word_2);
  }

  /// The "nav_mode" of a name without that key. It selects the style record and is not stored.
  static constexpr int kDefaultNavMode = 1;

  std::string light_text;          ///< Text about traffic lights: "light_text".
  std::int32_t extra_type = 0;     ///< An additional type code: "extra_type".
  float style_float_1 = 0;         ///< Value 4 when `mode_flag` is set, else 8.
  float style_float_2 = 0;         ///< Value 5 when `mode_flag` is set, else 9.
  float style_float_3 = 0;         ///< Value 6 when `mode_flag` is set, else 10.
  std::uint32_t style_word_2 = 0;  ///< Value 7 when `mode_flag` is set, else 11.
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_TRAFFIC_DRAW_DESCRIPTOR_H_
