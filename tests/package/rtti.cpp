// The part of the plain client that has RTTI.
#include "descriptors/traffic_draw_descriptor.h"

bool IsTrafficByRtti(kavrix::BubbleDrawDescriptor& descriptor);

bool IsTrafficByRtti(kavrix::BubbleDrawDescriptor& descriptor) {
  return dynamic_cast<kavrix::TrafficDrawDescriptor*>(&descriptor) != nullptr;
}
