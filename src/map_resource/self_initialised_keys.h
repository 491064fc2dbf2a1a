#ifndef KAVRIX_MAP_RESOURCE_SELF_INITIALISED_KEYS_H_
#define KAVRIX_MAP_RESOURCE_SELF_INITIALISED_KEYS_H_

namespace kavrix {

// The keys that the four kinds whose descriptor decodes itself share; each kind adds its own after them.
template <class Keys, class Descriptor>
void SelfInitialisedKeys(Keys& keys, Descriptor& bubble) {
  keys.Integer("scene", bubble.scene);
  keys.Text("content", bubble.content);
  keys.Text("lan", bubble.lan);
  keys.Integer("type", bubble.type);
  keys.Integer("direction", bubble.direction);
  keys.TrueWhenZero("mode", bubble.mode_flag);
  keys.TrueWhenOne("is_force_", bubble.is_force);
}

}  // namespace kavrix

#endif  // KAVRIX_MAP_RESOURCE_SELF_INITIALISED_KEYS_H_
