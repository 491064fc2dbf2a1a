#ifndef KAVRIX_MAP_RESOURCE_BUBBLE_MARKERS_H_
#define KAVRIX_MAP_RESOURCE_BUBBLE_MARKERS_H_

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace kavrix {

// The bubble kinds in the order of recognition: of several markers in one name the first of this list wins,
// wherever it stands.
enum class BubbleKind {
  kTraffic,
  kRouteName,
  kIndoorEntries,
  kCompanion,
  kCamera,
  kEta,
  kRouteLabel,
  kRouteExplain,
  kMarker,
  kLightCountdown,
  kMultiLightCountdown,
  kViaCircle,
  kLightWait,
  kTurn,
  kHdLongSolid,
  kUndergroundPark,
  kForceDot,
  kForcePoll,
  kYawNotice,
  kRouteAccident,
  kSafeWarning,
  kLaneChange,
};

// The marker of each kind, in the order of BubbleKind. Markers are case-sensitive; the last seven begin with
// a capital.
inline constexpr std::array<std::string_view, 22> kBubbleMarkers = {
    ".trafficBubble",
    ".nameBubble",
    ".inDoorEntriesBubble",
    ".companionBubble",
    ".cameraBubble",
    ".etaBubble",
    ".labelBubble",
    ".routeExplainBubble",
    ".markerBubble",
    ".lightCountdownBubble",
    ".multiLightCountdownBubble",
    ".viaCircleBubble",
    ".lightWaitBubble",
    ".turnBubble",
    ".hdLongSolidBubble",
    ".UndergroundParkBubble",
    ".ForceDotBubble",
    ".ForcePollBubble",
    ".YawNoticeBubble",
    ".RouteAccidentBubble",
    ".SafeWarningBubble",
    ".LaneChangeBubble",
};

constexpr std::string_view MarkerOf(BubbleKind kind) {
  return kBubbleMarkers[static_cast<std::size_t>(kind)];
}

// What stands behind the payload of a marker name, which has its own entry point.
inline constexpr std::string_view kMarkerNameTail = ".marker";

// The kind whose marker occurs in the name, the first in order when several do. One pass over the name.
std::optional<BubbleKind> FindBubbleKind(std::string_view resource_name);

}  // namespace kavrix

#endif  // KAVRIX_MAP_RESOURCE_BUBBLE_MARKERS_H_
