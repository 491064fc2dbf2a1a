#ifndef KAVRIX_DESCRIPTORS_YAW_NOTICE_BUBBLE_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_YAW_NOTICE_BUBBLE_DRAW_DESCRIPTOR_H_

#include <cstdint>
#include <string>

#include "../util/export.h"
#include "bubble_draw_descriptor.h"

namespace kavrix {

// The notice that the car has left its route.
class KAVRIX_EXPORT YawNoticeBubbleDrawDescriptor : public BubbleDrawDescriptor {
 public:
  const char* TypeName() const override;
  void VisitOwnMembers(MemberVisitor& visitor) const override { visitor.Integer("reason", reason); }

  // Reads the members from the JSON object inside a whole resource name, prefix and marker included. False,
  // and nothing read, when there is none.
  bool InitWithJson(const std::string& text);

  std::int32_t reason = 0;  // why the route was left: a code of the guidance engine
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_YAW_NOTICE_BUBBLE_DRAW_DESCRIPTOR_H_
