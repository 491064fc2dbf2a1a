#ifndef KAVRIX_MAP_RESOURCE_BUBBLE_MARKERS_H_
#define KAVRIX_MAP_RESOURCE_BUBBLE_MARKERS_H_

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace kavrix {

// One value for each line of the list of kinds.
enum class BubbleKind {
#define KAVRIX_BUBBLE_KIND(Kind, stem, marker, Descriptor, Parse, Encode) k##Kind,
#include "map_resource/bubble_kinds.def"
};

// All kinds, and the marker of each, in the order of recognition.
inline constexpr std::array kBubbleKinds = {
#define KAVRIX_BUBBLE_KIND(Kind, stem, marker, Descriptor, Parse, Encode) BubbleKind::k##Kind,
#include "map_resource/bubble_kinds.def"
};
inline constexpr std::array<std::string_view, kBubbleKinds.size()> kBubbleMarkers = {
#define KAVRIX_BUBBLE_KIND(Kind, stem, marker, Descriptor, Parse, Encode) marker,
#include "map_resource/bubble_kinds.def"
};

constexpr std::string_view MarkerOf(BubbleKind kind) {
  return kBubbleMarkers[static_cast<std::size_t>(kind)];
}

// The end of marker names, which have their own entry point.
inline constexpr std::string_view kMarkerNameTail = ".marker";

// Returns the kind whose marker occurs in the name, the first in order when several do. Takes one pass over
// the name.
std::optional<BubbleKind> FindBubbleKind(std::string_view resource_name);

}  // namespace kavrix

#endif  // KAVRIX_MAP_RESOURCE_BUBBLE_MARKERS_H_
