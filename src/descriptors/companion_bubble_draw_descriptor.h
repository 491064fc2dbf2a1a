#ifndef KAVRIX_DESCRIPTORS_COMPANION_BUBBLE_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_COMPANION_BUBBLE_DRAW_DESCRIPTOR_H_

#include <cstdint>
#include <string>

#include "../util/export.h"
#include "bubble_draw_descriptor.h"

namespace kavrix {

// The comparison of a companion route with the main one.
class KAVRIX_EXPORT CompanionBubbleDrawDescriptor : public BubbleDrawDescriptor {
 public:
  const char* TypeName() const override;
  void VisitOwnMembers(MemberVisitor& visitor) const override {
    visitor.Text("time", time);
    visitor.Text("label", label);
    visitor.Text("distance", distance);
    visitor.Text("fee", fee);
    visitor.Text("light", light);
    visitor.Flag("better", better);
    visitor.Integer("scene", scene);
  }

  std::string time;  // travel time as text
  std::string label;
  std::string distance;  // distance as text
  std::string fee;
  std::string light;    // traffic lights on the way, as text
  bool better = false;  // the companion route is the better one
  // cppcheck-suppress duplInheritedMember
  std::int32_t scene = 0;  // the companion's own scene; the base has another
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_COMPANION_BUBBLE_DRAW_DESCRIPTOR_H_
