#ifndef KAVRIX_DESCRIPTORS_COMPANION_BUBBLE_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_COMPANION_BUBBLE_DRAW_DESCRIPTOR_H_

#include <cstdint>
#include <string>

#include "../util/export.h"
#include "bubble_draw_descriptor.h"

namespace kavrix {

/// The comparison of a companion route with the main one: `.companionBubble`. The style record is
/// `companion_style`.
///
/// Base members: `scene` ("scene_"), `direction` (after `@`), `mode_flag`, `is_force` (true when "is_force_"
/// is not 0), `style_name`, `style_word` (when `mode_flag` is set, value 2 or, of a better route, 3; else 4
/// or 5), `style_scale` (values 6 and 7).
class KAVRIX_EXPORT CompanionBubbleDrawDescriptor : public BubbleDrawDescriptor {
 public:
  const char* TypeName() const override;
  void VisitOwnMembers(MemberVisitor& visitor) const override {
    visitor.Text("time", time);
    visitor.Text("label", label);
    visitor.Text("distance", distance);
    visitor.Text("fee", fee);
    visitor.Text("light", light);
    visitor.Flag("better", better);
    visitor.Integer("scene", scene);
  }

  std::string time;      ///< Travel time as text: "time".
  std::string label;     ///< Label: "label".
  std::string distance;  ///< Distance as text: "distance".
  std::string fee;       ///< Fee as text: "fee".
  std::string light;     ///< Traffic lights as text: "light".
  bool better = false;   ///< The companion route is the better one: true when "better" is 1.
  // cppcheck-suppress duplInheritedMember
  std::int32_t scene = 0;  ///< The companion's own scene: "scene". It hides the base's.
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_COMPANION_BUBBLE_DRAW_DESCRIPTOR_H_
