#ifndef KAVRIX_DESCRIPTORS_HD_LONG_SOLID_BUBBLE_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_HD_LONG_SOLID_BUBBLE_DRAW_DESCRIPTOR_H_

#include "../util/export.h"
#include "bubble_draw_descriptor.h"

namespace kavrix {

// The callout of a long solid line in HD guidance. Has only the base members.
class KAVRIX_EXPORT HDLongSolidBubbleDrawDescriptor : public BubbleDrawDescriptor {
 public:
  const char* TypeName() const override;
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_HD_LONG_SOLID_BUBBLE_DRAW_DESCRIPTOR_H_
