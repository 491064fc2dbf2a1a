#ifndef KAVRIX_DESCRIPTORS_SAFE_WARNING_BUBBLE_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_SAFE_WARNING_BUBBLE_DRAW_DESCRIPTOR_H_

#include <cstdint>
#include <string>

#include "../util/export.h"
#include "bubble_draw_descriptor.h"

namespace kavrix {

/// A safety warning ahead, such as a school or a sharp bend: `.SafeWarningBubble`, without a style.
///
/// Base members: `scene`, `content`, `lan`, `type`, `direction` (the number after `@`, else "direction"),
/// `mode_flag`, `is_force`.
class KAVRIX_EXPORT SafeWarningBubbleDrawDescriptor : public BubbleDrawDescriptor {
 public:
  const char* TypeName() const override;
  void VisitOwnMembers(MemberVisitor& visitor) const override {
    visitor.Integer("category", category);
    visitor.Integer("distance", distance);
  }

  /// Reads the members from a JSON object. Returns false, with nothing read, when `text` is not one.
  bool InitWithJson(const std::string& text);

  std::int32_t category = 0;  ///< Code of the warning: "category".
  std::int32_t distance = 0;  ///< Distance to what is warned of, in metres: "distance".
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_SAFE_WARNING_BUBBLE_DRAW_DESCRIPTOR_H_
