#ifndef KAVRIX_DESCRIPTORS_MARKER_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_MARKER_DRAW_DESCRIPTOR_H_

#include <cstdint>
#include <string>

#include "../util/export.h"
#include "bubble_draw_descriptor.h"
#include "marker_type.h"

namespace kavrix {

// A map marker. The base's `content` is its image key.
class KAVRIX_EXPORT MarkerDrawDescriptor : public BubbleDrawDescriptor {
 public:
  const char* TypeName() const override;
  void VisitOwnMembers(MemberVisitor& visitor) const override {
    visitor.Code("marker_type", MarkerType(marker_type));
    visitor.Text("name", name);
    visitor.Integer("resource_id", resource_id);
    visitor.Flag("is_main_map", is_main_map);
  }

  std::int16_t marker_type = 0;  // the value of a MarkerType
  std::string name;
  std::int32_t resource_id = 0;  // an id of the icon catalogue
  bool is_main_map = false;
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_MARKER_DRAW_DESCRIPTOR_H_
