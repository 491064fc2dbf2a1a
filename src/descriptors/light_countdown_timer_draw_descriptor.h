#ifndef KAVRIX_DESCRIPTORS_LIGHT_COUNTDOWN_TIMER_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_LIGHT_COUNTDOWN_TIMER_DRAW_DESCRIPTOR_H_

#include <cstdint>
#include <string>

#include "../util/export.h"
#include "bubble_draw_descriptor.h"

namespace kavrix {

/// The countdown of one traffic light: `.lightCountdownBubble`, without a style.
///
/// Base members: `scene`, `direction` (after `@`), `mode_flag`, `is_force`.
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

  std::string id;                    ///< Identifier of the bubble: "id".
  std::int32_t style = 0;            ///< Code of the drawing style: "style".
  std::int32_t light_type = 0;       ///< Code of the light: "light_type".
  std::int32_t turn_arrow_type = 0;  ///< Code of the turn arrow: "turn_arrow_type".
  std::int32_t time = 0;             ///< Time left on the countdown: "time".
  std::string text;                  ///< Text of the bubble: "text".
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_LIGHT_COUNTDOWN_TIMER_DRAW_DESCRIPTOR_H_
