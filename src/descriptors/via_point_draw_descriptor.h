#ifndef KAVRIX_DESCRIPTORS_VIA_POINT_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_VIA_POINT_DRAW_DESCRIPTOR_H_

#include <cstdint>
#include <string>

#include "../util/export.h"
#include "bubble_draw_descriptor.h"

namespace kavrix {

/// The numbered circle at an intermediate stop of a route: `.viaCircleBubble`, without a style.
///
/// Base members: `scene`, `lan`, `bubble_kind` (20), `direction`, `mode_flag`.
class KAVRIX_EXPORT ViaPointDrawDescriptor : public BubbleDrawDescriptor {
 public:
  const char* TypeName() const override;
  void VisitOwnMembers(MemberVisitor& visitor) const override {
    visitor.Text("route_id", route_id);
    visitor.Integer("index", index);
    visitor.Flag("is_selected", is_selected);
    visitor.Flag("is_reached", is_reached);
    visitor.Flag("is_main_map", is_main_map);
    visitor.Integer("resource_id", resource_id);
  }

  std::string route_id;          ///< Identifier of the route: "route_id".
  std::int32_t index = 0;        ///< Index of the stop: "index".
  bool is_selected = false;      ///< The stop is selected: true when "is_selected" is not 0.
  bool is_reached = false;       ///< The stop is reached: true when "is_reached" is not 0.
  bool is_main_map = false;      ///< The circle belongs to the main map: true when "is_main_map" is not 0.
  std::int32_t resource_id = 0;  ///< Id of the circle's icon, see kavrix::R: "resource_id".
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_VIA_POINT_DRAW_DESCRIPTOR_H_
