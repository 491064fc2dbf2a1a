#ifndef KAVRIX_MAP_RESOURCE_FORCE_BUBBLE_H_
#define KAVRIX_MAP_RESOURCE_FORCE_BUBBLE_H_

#include "descriptors/bubble_draw_descriptor.h"
#include "util/key_reader.h"

namespace kavrix {

// What the force dot and the force poll share.
template <class Keys, class Descriptor>
void ForceBubbleKeys(Keys& keys, Descriptor& bubble) {
  keys.TrueWhenZero("mode", bubble.mode_flag);
  keys.Integer("type", bubble.type);
}

inline void FillForceBubble(const Json::Value& root, const char* image_key, BubbleDrawDescriptor& bubble) {
  JsonKeyReader keys(root);
  ForceBubbleKeys(keys, bubble);
  bubble.content = image_key;
  bubble.is_force = true;
}

}  // namespace kavrix

#endif  // KAVRIX_MAP_RESOURCE_FORCE_BUBBLE_H_
