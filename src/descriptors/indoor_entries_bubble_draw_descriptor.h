#ifndef KAVRIX_DESCRIPTORS_INDOOR_ENTRIES_BUBBLE_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_INDOOR_ENTRIES_BUBBLE_DRAW_DESCRIPTOR_H_

#include <cstdint>
#include <string>

#include "../util/export.h"
#include "bubble_draw_descriptor.h"

namespace kavrix {

// The label of the entries of an indoor place.
class KAVRIX_EXPORT IndoorEntriesBubbleDrawDescriptor : public BubbleDrawDescriptor {
 public:
  const char* TypeName() const override;
  void VisitOwnMembers(MemberVisitor& visitor) const override {
    visitor.Integer("entries_value", entries_value);
    visitor.Text("entries_text", entries_text);
  }

  std::int16_t entries_value = 0;
  std::string entries_text;
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_INDOOR_ENTRIES_BUBBLE_DRAW_DESCRIPTOR_H_
