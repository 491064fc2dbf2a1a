#ifndef KAVRIX_DESCRIPTORS_HD_LONG_SOLID_BUBBLE_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_HD_LONG_SOLID_BUBBLE_DRAW_DESCRIPTOR_H_

#include "../util/export.h"
#include "bubble_draw_descriptor.h"

namespace kavrix {

/// The callout of a long solid line in HD guidance: `.hdLongSolidBubble`. The style record is
/// `hd_long_solid_style`.
///
/// Base members: `content` (the key of the image), `bubble_kind` (12), `direction`, `mode_flag`,
/// `style_name`, `style_word`, `style_scale`, `is_force` (true when the name has a third field). There are no
/// others.
class KAVRIX_EXPORT HDLongSolidBubbleDrawDescriptor : public BubbleDrawDescriptor {
 public:
  const char* TypeName() const override;
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_HD_LONG_SOLID_BUBBLE_DRAW_DESCRIPTOR_H_
