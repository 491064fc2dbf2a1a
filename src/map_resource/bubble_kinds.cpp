#include "map_resource/bubble_kinds.h"

namespace kavrix {

const BubbleKindInfo& InfoOf(BubbleKind kind) {
  switch (kind) {  // GCOVR_EXCL_BR_LINE: see the end
    case BubbleKind::kTraffic:
      return kTrafficBubbleInfo;
    case BubbleKind::kRouteName:
      return kRouteNameBubbleInfo;
    case BubbleKind::kIndoorEntries:
      return kIndoorEntriesBubbleInfo;
    case BubbleKind::kCompanion:
      return kCompanionBubbleInfo;
    case BubbleKind::kCamera:
      return kCameraBubbleInfo;
    case BubbleKind::kEta:
      return kEtaBubbleInfo;
    case BubbleKind::kRouteLabel:
      return kRouteLabelBubbleInfo;
    case BubbleKind::kRouteExplain:
      return kRouteExplainBubbleInfo;
    case BubbleKind::kMarker:
      return kMarkerBubbleInfo;
    case BubbleKind::kLightCountdown:
      return kLightCountdownBubbleInfo;
    case BubbleKind::kMultiLightCountdown:
      return kMultiLightCountdownBubbleInfo;
    case BubbleKind::kViaCircle:
      return kViaCircleBubbleInfo;
    case BubbleKind::kLightWait:
      return kLightWaitBubbleInfo;
    case BubbleKind::kTurn:
      return kTurnBubbleInfo;
    case BubbleKind::kHdLongSolid:
      return kHdLongSolidBubbleInfo;
    case BubbleKind::kUndergroundPark:
      return kUndergroundParkBubbleInfo;
    case BubbleKind::kForceDot:
      return kForceDotBubbleInfo;
    case BubbleKind::kForcePoll:
      return kForcePollBubbleInfo;
    case BubbleKind::kYawNotice:
      return kYawNoticeBubbleInfo;
    case BubbleKind::kRouteAccident:
      return kRouteAccidentBubbleInfo;
    case BubbleKind::kSafeWarning:
      return kSafeWarningBubbleInfo;
    case BubbleKind::kLaneChange:
      return kLaneChangeBubbleInfo;
  }
  return kTrafficBubbleInfo;  // for values that are no kind; the switch names all of them. GCOVR_EXCL_LINE
}

}  // namespace kavrix
