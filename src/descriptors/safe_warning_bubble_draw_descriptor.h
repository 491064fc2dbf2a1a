#ifndef KAVRIX_DESCRIPTORS_SAFE_WARNING_BUBBLE_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_SAFE_WARNING_BUBBLE_DRAW_DESCRIPTOR_H_

#include <cstdint>
#include <string>

#include "../util/export.h"
#include "bubble_draw_descriptor.h"

namespace kavrix {

// A safety warning ahead, such as a school or a sharp bend.
class KAVRIX_EXPORT SafeWarningBubbleDrawDescriptor : public BubbleDrawDescriptor {
 public:
  const char* TypeName() const override;
  void VisitOwnMembers(MemberVisitor& visitor) const override {
    visitor.Integer("category", category);
    visitor.Integer("distance", distance);
  }

  // Reads the members from a JSON object. False, and nothing read, when `text` is not one.
  bool InitWithJson(const std::string& text);

  std::int32_t category = 0;
  std::int32_t distance = 0;  // to it, in metres
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_SAFE_WARNING_BUBBLE_DRAW_DESCRIPTOR_H_
