#ifndef KAVRIX_DESCRIPTORS_SAFE_WARNING_BUBBLE_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_SAFE_WARNING_BUBBLE_DRAW_DESCRIPTOR_H_

#include <cstdint>
#include <string>

#include "descriptors/bubble_draw_descriptor.h"

namespace kavrix {

// A safety warning ahead, such as a school or a sharp bend.
class SafeWarningBubbleDrawDescriptor : public BubbleDrawDescriptor {
 public:
  const char* TypeName() const override { return "SafeWarningBubbleDrawDescriptor"; }
  void VisitOwnMembers(MemberVisitor& visitor) const override {
    visitor.Integer("category", category);
    visitor.Integer("distance", distance);
  }

  // Reads the members from a JSON object text. False, and nothing read, when there is none.
  bool InitWithJson(const std::string& text);

  std::int32_t category = 0;  // category of the warning
  std::int32_t distance = 0;  // distance to it in metres
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_SAFE_WARNING_BUBBLE_DRAW_DESCRIPTOR_H_
