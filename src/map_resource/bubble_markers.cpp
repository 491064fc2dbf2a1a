#include "map_resource/bubble_markers.h"

#include <cstdint>

namespace kavrix {
namespace {

// For each letter the markers that have it behind their dot, one bit a marker.
constexpr std::array<std::uint32_t, 256> MarkersByFirstLetter() {
  std::array<std::uint32_t, 256> markers{};
  for (std::size_t i = 0; i < kBubbleMarkers.size(); ++i) {
    markers[static_cast<unsigned char>(kBubbleMarkers[i][1])] |= std::uint32_t{1} << i;
  }
  return markers;
}

constexpr std::array<std::uint32_t, 256> kMarkersByFirstLetter = MarkersByFirstLetter();

bool StartsWith(std::string_view text, std::string_view head) { return text.substr(0, head.size()) == head; }

}  // namespace

std::optional<BubbleKind> FindBubbleKind(std::string_view resource_name) {
  std::size_t first = kBubbleMarkers.size();
  for (std::size_t dot = resource_name.find('.'); dot != std::string_view::npos;
       dot = resource_name.find('.', dot + 1)) {
    const std::string_view rest = resource_name.substr(dot);
    if (rest.size() < 2) break;
    std::uint32_t candidates = kMarkersByFirstLetter[static_cast<unsigned char>(rest[1])];
    for (std::size_t i = 0; candidates != 0 && i < first; ++i, candidates >>= 1) {
      if ((candidates & 1) != 0 && StartsWith(rest, kBubbleMarkers[i])) first = i;
    }
    if (first == 0) break;
  }
  if (first == kBubbleMarkers.size()) return std::nullopt;
  return static_cast<BubbleKind>(first);
}

}  // namespace kavrix
