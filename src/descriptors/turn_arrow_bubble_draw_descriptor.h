#ifndef KAVRIX_DESCRIPTORS_TURN_ARROW_BUBBLE_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_TURN_ARROW_BUBBLE_DRAW_DESCRIPTOR_H_

#include <cstdint>

#include "../util/export.h"
#include "bubble_draw_descriptor.h"

namespace kavrix {

/// The next manoeuvre along the route: `.turnBubble`. Of the style record, `turn_style`, only the name is
/// read.
///
/// Base members: `scene`, `lan`, `bubble_kind` (10), `type`, `direction`, `mode_flag`, `style_name`,
/// `is_force`.
class KAVRIX_EXPORT TurnArrowBubbleDrawDescriptor : public BubbleDrawDescriptor {
 public:
  const char* TypeName() const override;
  void VisitOwnMembers(MemberVisitor& visitor) const override { visitor.Integer("distance", distance); }

  std::int32_t distance = 0;  ///< Distance to the manoeuvre: "distance", as it stands.
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_TURN_ARROW_BUBBLE_DRAW_DESCRIPTOR_H_
