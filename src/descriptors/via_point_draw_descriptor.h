#ifndef KAVRIX_DESCRIPTORS_VIA_POINT_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_VIA_POINT_DRAW_DESCRIPTOR_H_

#include <cstdint>
#include <string>

#include "../util/export.h"
#include "bubble_draw_descriptor.h"

namespace kavrix {

// The numbered circle at an intermediate stop of a route.
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

  std::string route_id;
  std::int32_t index = 0;
  bool is_selected = false;
  bool is_reached = false;
  bool is_main_map = false;
  std::int32_t resource_id = 0;  // an id of the icon catalogue
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_VIA_POINT_DRAW_DESCRIPTOR_H_
