#include "map_resource/bubble_kinds.h"

#include <array>

namespace kavrix {

const BubbleKindInfo& InfoOf(BubbleKind kind) {
  // In the order of BubbleKind.
  static constexpr std::array kInfos = {
      &kTrafficBubbleInfo,
      &kRouteNameBubbleInfo,
      &kIndoorEntriesBubbleInfo,
      &kCompanionBubbleInfo,
      &kCameraBubbleInfo,
      &kEtaBubbleInfo,
      &kRouteLabelBubbleInfo,
      &kRouteExplainBubbleInfo,
      &kMarkerBubbleInfo,
      &kLightCountdownBubbleInfo,
      &kMultiLightCountdownBubbleInfo,
      &kViaCircleBubbleInfo,
      &kLightWaitBubbleInfo,
      &kTurnBubbleInfo,
      &kHdLongSolidBubbleInfo,
      &kUndergroundParkBubbleInfo,
      &kForceDotBubbleInfo,
      &kForcePollBubbleInfo,
      &kYawNoticeBubbleInfo,
      &kRouteAccidentBubbleInfo,
      &kSafeWarningBubbleInfo,
      &kLaneChangeBubbleInfo,
  };
  static_assert(kInfos.size() == kBubbleMarkers.size());
  return *kInfos[static_cast<std::size_t>(kind)];
}

}  // namespace kavrix
