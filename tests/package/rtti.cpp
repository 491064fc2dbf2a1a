// The part of the plain client that has RTTI and exceptions.
#include <stdexcept>
#include <string>

#include "descriptors/traffic_draw_descriptor.h"

bool IsTrafficByRtti(kavrix::BubbleDrawDescriptor& descriptor);
bool CatchesTheException(int (*decode_too_short)(const std::string& name));

bool IsTrafficByRtti(kavrix::BubbleDrawDescriptor& descriptor) {
  return dynamic_cast<kavrix::TrafficDrawDescriptor*>(&descriptor) != nullptr;
}

bool CatchesTheException(int (*decode_too_short)(const std::string& name)) {
  try {
    decode_too_short(".trafficBubble");
  } catch (const std::out_of_range&) {
    return true;
  }
  return false;
}
