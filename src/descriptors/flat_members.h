#ifndef KAVRIX_DESCRIPTORS_FLAT_MEMBERS_H_
#define KAVRIX_DESCRIPTORS_FLAT_MEMBERS_H_

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "descriptors/bubble_draw_descriptor.h"

namespace kavrix {

// One plain value of a descriptor under the path to it, such as "style_scale[1]" or "cameras[0].speed". An
// unsigned value is a style word.
struct FlatMember {
  std::string path;
  std::variant<std::int64_t, std::uint32_t, MarkerType, bool, float, std::string> value;
};

inline bool operator==(const FlatMember& a, const FlatMember& b) {
  return a.path == b.path && a.value == b.value;
}

// All members of the object in declaration order, lists and records taken apart.
std::vector<FlatMember> FlatMembers(const BubbleDrawDescriptor& descriptor);

// Whether the value is zero, false or empty: what a new descriptor holds.
bool IsDefault(const FlatMember& member);

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_FLAT_MEMBERS_H_
