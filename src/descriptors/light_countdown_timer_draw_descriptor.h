#ifndef KAVRIX_DESCRIPTORS_LIGHT_COUNTDOWN_TIMER_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_LIGHT_COUNTDOWN_TIMER_DRAW_DESCRIPTOR_H_

#include <cstdint>
#include <string>

#include "../util/export.h"
#include "bubble_draw_descriptor.h"

namespace kavrix {

// The countdown of one traffic light.
class KAVRIX_EXPORT LightCountdownTimerDrawDescriptor : public BubbleDrawDescriptor {
 public:
  const char* TypeName() const override;
  void VisitOwnMembers(MemberVisitor& visitor) const override {
    visitor.Text("id", id);
    visitor.Integer("style", style);
    visitor.Integer("light_type", light_type);
    visitor.Integer("turn_arrow_type", turn_arrow_type);
    visitor.Integer("time", time);
    visitor.Text("text", text);
  }

  std::string id;
  std::int32_t style = 0;
  std::int32_t light_type = 0;
  std::int32_t turn_arrow_type = 0;
  std::int32_t time = 0;  // time left
  std::string text;
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_LIGHT_COUNTDOWN_TIMER_DRAW_DESCRIPTOR_H_
