#ifndef KAVRIX_DESCRIPTORS_INDOOR_ENTRIES_BUBBLE_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_INDOOR_ENTRIES_BUBBLE_DRAW_DESCRIPTOR_H_

#include <cstdint>
#include <string>

#include "../util/export.h"
#include "bubble_draw_descriptor.h"

namespace kavrix {

/// The label of the entries of an indoor place: `.inDoorEntriesBubble`. The style record is
/// `indoor_entries_style`.
///
/// Base members: `content`, `lan`, `bubble_kind` (13), `direction`, `mode_flag`, `style_name`, `style_word`,
/// `style_scale`.
class KAVRIX_EXPORT IndoorEntriesBubbleDrawDescriptor : public BubbleDrawDescriptor {
 public:
  const char* TypeName() const override;
  void VisitOwnMembers(MemberVisitor& visitor) const override {
    visitor.Integer("entries_value", entries_value);
    visitor.Text("entries_text", entries_text);
  }

  /// Number of the field "entries_value", read as atoi does: 0 when it begins with no number.
  std::int16_t entries_value = 0;
  std::string entries_text;  ///< Text of the field "entries_text".
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_INDOOR_ENTRIES_BUBBLE_DRAW_DESCRIPTOR_H_
