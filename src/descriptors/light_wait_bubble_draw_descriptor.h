#ifndef KAVRIX_DESCRIPTORS_LIGHT_WAIT_BUBBLE_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_LIGHT_WAIT_BUBBLE_DRAW_DESCRIPTOR_H_

#include "../util/export.h"
#include "bubble_draw_descriptor.h"

namespace kavrix {

/// The bubble shown while waiting at a traffic light: `.lightWaitBubble`. The style record is
/// `light_wait_style`.
///
/// Base members: `scene`, `content`, `bubble_kind` (14), `direction`, `mode_flag`, `style_name`,
/// `style_word`, `style_scale`, `is_force` (true when "force" is exactly `1`). There are no others.
class KAVRIX_EXPORT LightWaitBubbleDrawDescriptor : public BubbleDrawDescriptor {
 public:
  const char* TypeName() const override;
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_LIGHT_WAIT_BUBBLE_DRAW_DESCRIPTOR_H_
