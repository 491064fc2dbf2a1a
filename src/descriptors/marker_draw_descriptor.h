#ifndef KAVRIX_DESCRIPTORS_MARKER_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_MARKER_DRAW_DESCRIPTOR_H_

#include <cstdint>
#include <string>

#include "../util/export.h"
#include "bubble_draw_descriptor.h"
#include "marker_type.h"

namespace kavrix {

/// A map marker: `.marker`, without a style. MapResourceTransform::GetMarkerDrawDescriptor makes it.
///
/// Base members: `scene`, `content` (the key of the image: prefix, marker type's name in lower case, `_` and
/// `name`), `lan`, `bubble_kind` (21), `direction`, `mode_flag`, `is_force` (always true).
class KAVRIX_EXPORT MarkerDrawDescriptor : public BubbleDrawDescriptor {
 public:
  const char* TypeName() const override;
  void VisitOwnMembers(MemberVisitor& visitor) const override {
    visitor.Code("marker_type", MarkerType(marker_type));
    visitor.Text("name", name);
    visitor.Integer("resource_id", resource_id);
    visitor.Flag("is_main_map", is_main_map);
  }

  std::int16_t marker_type = 0;  ///< The value of a MarkerType, or any other: "marker_type".
  std::string name;              ///< The marker's name: "name".
  std::int32_t resource_id = 0;  ///< Id of the marker's icon, see kavrix::R: "resource_id".
  bool is_main_map = false;      ///< The marker belongs to the main map: true when "is_main_map" is not 0.
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_MARKER_DRAW_DESCRIPTOR_H_
