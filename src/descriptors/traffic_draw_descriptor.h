#ifndef KAVRIX_DESCRIPTORS_TRAFFIC_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_TRAFFIC_DRAW_DESCRIPTOR_H_

#include <cstdint>
#include <string>

#include "../util/export.h"
#include "bubble_draw_descriptor.h"

namespace kavrix {

// The label on a route that shows the traffic ahead.
class KAVRIX_EXPORT TrafficDrawDescriptor : public BubbleDrawDescriptor {
 public:
  const char* TypeName() const override;
  void VisitOwnMembers(MemberVisitor& visitor) const override {
    visitor.Text("light_text", light_text);
    visitor.Integer("extra_type", extra_type);
    visitor.Real("style_float_1", style_float_1);
    visitor.Real("style_float_2", style_float_2);
    visitor.Real("style_float_3", style_float_3);
    visitor.Word("style_word_2", style_word_2);
  }

  // The "nav_mode" of a name without that key. It selects the style record and is not stored.
  static constexpr int kDefaultNavMode = 1;

  std::string light_text;
  std::int32_t extra_type = 0;
  float style_float_1 = 0;
  float style_float_2 = 0;
  float style_float_3 = 0;
  std::uint32_t style_word_2 = 0;
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_TRAFFIC_DRAW_DESCRIPTOR_H_
