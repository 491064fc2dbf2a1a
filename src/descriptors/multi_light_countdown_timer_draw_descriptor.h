#ifndef KAVRIX_DESCRIPTORS_MULTI_LIGHT_COUNTDOWN_TIMER_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_MULTI_LIGHT_COUNTDOWN_TIMER_DRAW_DESCRIPTOR_H_

#include <cstdint>
#include <string>
#include <vector>

#include "../util/export.h"
#include "bubble_draw_descriptor.h"

namespace kavrix {

// The countdowns of several traffic lights at once.
class KAVRIX_EXPORT MultiLightCountdownTimerDrawDescriptor : public BubbleDrawDescriptor {
 public:
  struct OneLightCountdownTimerDrawDescriptor {
    static constexpr std::int32_t kNoTurnArrow = -1;  // the value of a light without the key

    std::int32_t light_type = 0;
    std::int32_t turn_arrow_type = kNoTurnArrow;
    std::int32_t remain_time = 0;
    std::string text;
    std::int32_t total_time = 0;
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

  std::int32_t style = 0;
  std::string id;
  bool is_animation = false;
  std::vector<OneLightCountdownTimerDrawDescriptor> light_descriptors;
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_MULTI_LIGHT_COUNTDOWN_TIMER_DRAW_DESCRIPTOR_H_
