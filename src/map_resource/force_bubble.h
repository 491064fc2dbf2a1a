#ifndef KAVRIX_MAP_RESOURCE_FORCE_BUBBLE_H_
#define KAVRIX_MAP_RESOURCE_FORCE_BUBBLE_H_

#include "descriptors/bubble_draw_descriptor.h"
#include "map_resource/name_codec.h"

namespace kavrix {

// The format that the force dot and the force poll share.
template <class Self>
struct ForceBubbleFormat : JsonFormat<Self, BubbleDrawDescriptor> {
  template <class Keys, class Descriptor>
  static void List(Keys& keys, Descriptor& bubble) {
    keys.TrueWhenZero("mode", bubble.mode_flag);
    keys.Integer("type", bubble.type);
  }
};

}  // namespace kavrix

#endif  // KAVRIX_MAP_RESOURCE_FORCE_BUBBLE_H_
