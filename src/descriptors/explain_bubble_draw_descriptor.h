#ifndef KAVRIX_DESCRIPTORS_EXPLAIN_BUBBLE_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_EXPLAIN_BUBBLE_DRAW_DESCRIPTOR_H_

#include <cstdint>
#include <string>
#include <vector>

#include "../util/export.h"
#include "bubble_draw_descriptor.h"

namespace kavrix {

/// The explanation of a route: a main line, secondary lines, an icon. `.routeExplainBubble`, without a style.
///
/// Base members: `scene`, `lan`, `direction`, `mode_flag`, `icon`.
class KAVRIX_EXPORT ExplainBubbleDrawDescriptor : public BubbleDrawDescriptor {
 public:
  const char* TypeName() const override;
  void VisitOwnMembers(MemberVisitor& visitor) const override {
    visitor.Text("uid", uid);
    visitor.Text("explain_content", explain_content);
    visitor.BeginList("second_content");
    for (const std::string& line : second_content) visitor.Text("", line);
    visitor.EndList();
    visitor.Integer("second_type", second_type);
    visitor.Integer("scene_type", scene_type);
    visitor.Integer("bubble_type", bubble_type);
  }

  std::string uid;                          ///< Identifier of the explained item: "uid".
  std::string explain_content;              ///< Main line: "content". The base's `content` stays empty.
  std::vector<std::string> second_content;  ///< Secondary lines: the strings of the array "second_content".
  std::int32_t second_type = 0;             ///< Kind of the secondary lines: "second_type".
  std::int32_t scene_type = 0;              ///< Scene that the explanation belongs to: "scene_type".
  std::int32_t bubble_type = 0;             ///< Variant of the bubble: "bubble_type".
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_EXPLAIN_BUBBLE_DRAW_DESCRIPTOR_H_
