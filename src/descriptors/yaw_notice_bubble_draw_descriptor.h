#ifndef KAVRIX_DESCRIPTORS_YAW_NOTICE_BUBBLE_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_YAW_NOTICE_BUBBLE_DRAW_DESCRIPTOR_H_

#include <cstdint>
#include <string>

#include "../util/export.h"
#include "bubble_draw_descriptor.h"

namespace kavrix {

/// The notice that the car has left its route: `.YawNoticeBubble`, without a style.
///
/// Base members: `scene`, `content`, `lan`, `type`, `direction`, `mode_flag`, `is_force`.
class KAVRIX_EXPORT YawNoticeBubbleDrawDescriptor : public BubbleDrawDescriptor {
 public:
  const char* TypeName() const override;
  void VisitOwnMembers(MemberVisitor& visitor) const override { visitor.Integer("reason", reason); }

  /// Reads the members from the JSON object inside a whole resource name, prefix and marker included.
  /// Returns false, with nothing read, when there is none.
  bool InitWithJson(const std::string& text);

  std::int32_t reason = 0;  ///< Why the route was left, a code of the guidance engine: "reason".
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_YAW_NOTICE_BUBBLE_DRAW_DESCRIPTOR_H_
