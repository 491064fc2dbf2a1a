#ifndef KAVRIX_DESCRIPTORS_LIGHT_WAIT_BUBBLE_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_LIGHT_WAIT_BUBBLE_DRAW_DESCRIPTOR_H_

#include "../util/export.h"
#include "bubble_draw_descriptor.h"

namespace kavrix {

// The bubble shown while waiting at a traffic light. Has only the base members.
class KAVRIX_EXPORT LightWaitBubbleDrawDescriptor : public BubbleDrawDescriptor {
 public:
  const char* TypeName() const override;
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_LIGHT_WAIT_BUBBLE_DRAW_DESCRIPTOR_H_
