#ifndef KAVRIX_DESCRIPTORS_DEST_NAME_ETA_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_DEST_NAME_ETA_DRAW_DESCRIPTOR_H_

#include <cstdint>
#include <string>

#include "../util/export.h"
#include "bubble_draw_descriptor.h"

namespace kavrix {

// The destination's name and a second line, such as the time of arrival, at the end of a route.
class KAVRIX_EXPORT DestNameEtaDrawDescriptor : public BubbleDrawDescriptor {
 public:
  const char* TypeName() const override;
  void VisitOwnMembers(MemberVisitor& visitor) const override {
    visitor.Text("sub_text", sub_text);
    visitor.Word("second_style_value", second_style_value);
    visitor.Word("second_mode_style_value", second_mode_style_value);
    visitor.Word("third_mode_style_value", third_mode_style_value);
    visitor.Word("fourth_mode_style_value", fourth_mode_style_value);
  }

  std::string sub_text;
  std::uint32_t second_style_value = 0;
  std::uint32_t second_mode_style_value = 0;
  std::uint32_t third_mode_style_value = 0;
  std::uint32_t fourth_mode_style_value = 0;
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_DEST_NAME_ETA_DRAW_DESCRIPTOR_H_
