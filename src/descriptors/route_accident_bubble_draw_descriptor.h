#ifndef KAVRIX_DESCRIPTORS_ROUTE_ACCIDENT_BUBBLE_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_ROUTE_ACCIDENT_BUBBLE_DRAW_DESCRIPTOR_H_

#include <cstdint>
#include <string>

#include "../util/export.h"
#include "bubble_draw_descriptor.h"

namespace kavrix {

/// An accident on the route: `.RouteAccidentBubble`, without a style.
///
/// Base members: `scene`, `content`, `lan`, `type`, `direction`, `mode_flag`, `is_force`.
class KAVRIX_EXPORT RouteAccidentBubbleDrawDescriptor : public BubbleDrawDescriptor {
 public:
  const char* TypeName() const override;
  void VisitOwnMembers(MemberVisitor& visitor) const override {
    visitor.Text("accident_id", accident_id);
    visitor.Integer("severity", severity);
  }

  /// Reads the members from the JSON object inside a whole resource name, prefix and marker included.
  /// Returns false, with nothing read, when there is none.
  bool InitWithJson(const std::string& text);

  std::string accident_id;    ///< Identifier of the traffic event: "accident_id".
  std::int32_t severity = 0;  ///< 0: unknown; higher is worse. "severity".
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_ROUTE_ACCIDENT_BUBBLE_DRAW_DESCRIPTOR_H_
