#ifndef KAVRIX_DESCRIPTORS_FLAT_MEMBERS_H_
#define KAVRIX_DESCRIPTORS_FLAT_MEMBERS_H_

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "descriptors/bubble_draw_descriptor.h"

namespace kavrix {

/// One plain value of a descriptor and the path to it, such as "style_scale[1]" or "cameras[0].speed".
struct FlatMember {
  std::string path;  ///< Where the value stands in the descriptor.
  /// The value; a std::uint32_t is a style word.
  std::variant<std::int64_t, std::uint32_t, MarkerType, bool, float, std::string> value;
};

/// Returns true when path, type and value are equal.
inline bool operator==(const FlatMember& a, const FlatMember& b) {
  return a.path == b.path && a.value == b.value;
}

/// Says whether a list has an entry of its own before its items: its length.
enum class ListLengths {
  kLeftOut,   ///< Only the items are entries.
  kIncluded,  ///< The length comes first, with the list's own path.
};

/// Returns all members of the descriptor in declaration order, lists and their objects taken apart.
std::vector<FlatMember> FlatMembers(const BubbleDrawDescriptor& descriptor,
                                    ListLengths lengths = ListLengths::kLeftOut);

/// Returns whether the value is zero, false or empty.
bool IsDefault(const FlatMember& member);

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_FLAT_MEMBERS_H_
