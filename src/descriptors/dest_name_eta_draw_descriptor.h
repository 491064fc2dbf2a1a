#ifndef KAVRIX_DESCRIPTORS_DEST_NAME_ETA_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_DEST_NAME_ETA_DRAW_DESCRIPTOR_H_

#include <cstdint>
#include <string>

#include "../util/export.h"
#include "bubble_draw_descriptor.h"

namespace kavrix {

/// The destination's name and a second line, such as the time of arrival, at the end of a route:
/// `.etaBubble`. The style record is `eta_style` in scene 0 and `eta_scene_style` in all others.
///
/// Base members: `scene`, `content` (up to the last `|`), `direction`, `mode_flag`, `style_name`,
/// `style_word` (value 3 when `mode_flag` is set, else 4), `style_scale` (values 2 and 8).
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

  std::string sub_text;                       ///< Second text: what follows the last `|` of "content".
  std::uint32_t second_style_value = 0;       ///< Style of the second text: value 5.
  std::uint32_t second_mode_style_value = 0;  ///< Style of the second text: value 6 (`mode_flag` set) or 7.
  std::uint32_t third_mode_style_value = 0;   ///< Value 9 (`mode_flag` set) or 10.
  std::uint32_t fourth_mode_style_value = 0;  ///< Value 11 (`mode_flag` set) or 12.
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_DEST_NAME_ETA_DRAW_DESCRIPTOR_H_
