#ifndef KAVRIX_DESCRIPTORS_MULTI_LIGHT_COUNTDOWN_TIMER_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_MULTI_LIGHT_COUNTDOWN_TIMER_DRAW_DESCRIPTOR_H_

#include <cstdint>
#include <string>
#include <vector>

#include "../util/export.h"
#include "bubble_draw_descriptor.h"

namespace kavrix {

/// The countdowns of several traffic lights at once: `.multiLightCountdownBubble`, without a style.
///
/// Base members: `scene`, `type` (KavrixContext::multi_light_type), `direction` (after `@`), `mode_flag`,
/// `is_force`.
class KAVRIX_EXPORT MultiLightCountdownTimerDrawDescriptor : public BubbleDrawDescriptor {
 public:
  /// One light: an element of "light_descriptors", whatever its JSON type.
  struct OneLightCountdownTimerDrawDescriptor {
    static constexpr std::int32_t kNoTurnArrow = -1;  ///< The `turn_arrow_type` of a light without the key.

    std::int32_t light_type = 0;                  ///< Code of the light: "light_type".
    std::int32_t turn_arrow_type = kNoTurnArrow;  ///< Code of the turn arrow: "turn_arrow_type".
    std::int32_t remain_time = 0;                 ///< Time left on the countdown: "remain_time".
    std::string text;                             ///< Text of the light: "text".
    std::int32_t total_time = 0;                  ///< Total time of the countdown: "total_time".
  };

  const char* TypeName() const override;
  void VisitOwnMembers(MemberVisitor& visitor) const override {
    visitor.Integer("style", style);
    visitor.Text("id", id);
    visitor.Flag("is_animation", is_animation);
    visitor.BeginList("light_descriptors");
    for (const OneLightCountdownTimerDrawDescriptor& light : light_descriptors) {
      visitor.BeginObject();
      visitor.Integer("light_type", light.light_type);
      visitor.Integer("turn_arrow_type", light.turn_arrow_type);
      visitor.Integer("remain_time", light.remain_time);
      visitor.Text("text", light.text);
      visitor.Integer("total_time", light.total_time);
      visitor.EndObject();
    }
    visitor.EndList();
  }

  std::int32_t style = 0;     ///< Code of the drawing style: "style".
  std::string id;             ///< Identifier of the bubble: "id".
  bool is_animation = false;  ///< The countdown is drawn animated: true when "is_animation" is 1.
  /// The array "light_descriptors", in its order.
  std::vector<OneLightCountdownTimerDrawDescriptor> light_descriptors;
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_MULTI_LIGHT_COUNTDOWN_TIMER_DRAW_DESCRIPTOR_H_
