#ifndef KAVRIX_DESCRIPTORS_HD_LANE_CHANGE_BUBBLE_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_HD_LANE_CHANGE_BUBBLE_DRAW_DESCRIPTOR_H_

#include <cstdint>
#include <string>

#include "../util/export.h"
#include "bubble_draw_descriptor.h"

namespace kavrix {

/// The advice of HD guidance to change lanes: `.LaneChangeBubble`, without a style.
///
/// Base members: `scene`, `content`, `lan`, `type`, `direction`, `mode_flag`, `is_force`.
class KAVRIX_EXPORT HDLaneChangeBubbleDrawDescriptor : public BubbleDrawDescriptor {
 public:
  const char* TypeName() const override;
  void VisitOwnMembers(MemberVisitor& visitor) const override {
    visitor.Integer("target_lane", target_lane);
    visitor.Integer("distance", distance);
  }

  /// Reads the members from the JSON object inside a whole resource name, prefix and marker included.
  /// Returns false, with nothing read, when there is none.
  bool InitWithJson(const std::string& text);

  std::int32_t target_lane = 0;  ///< Lane to change to, from the left, from 1; 0: unknown. "target_lane".
  std::int32_t distance = 0;     ///< Left for the change, in metres: "distance".
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_HD_LANE_CHANGE_BUBBLE_DRAW_DESCRIPTOR_H_
