#include "map_resource/map_resource_transform.h"

#include <utility>

#include "map_resource/bubble_markers.h"
#include "util/tagged_log.h"

namespace kavrix {

using logging::LogLevel;

MapResourceTransform::MapResourceTransform(std::shared_ptr<KavrixContext> context)
    : context_(std::move(context)) {}

void MapResourceTransform::GetBubbleDrawDescriptor(const std::string& resource_name,
                                                   std::shared_ptr<BubbleDrawDescriptor>& out) {
  KAVRIX_LOG(LogTagKavrixMapLayerMgr, LogLevel::kRoutine, "resource_name:" << resource_name);

  const std::optional<BubbleKind> kind = FindBubbleKind(resource_name);
  if (!kind) {
    KAVRIX_LOG(LogTagKavrixMapLayerMgr, LogLevel::kFailure,
               "resource_name:" << resource_name << ", it is a not valid bubble.");
    return;
  }
  switch (*kind) {  // GCOVR_EXCL_BR_LINE: of no other value there is one
    case BubbleKind::kTraffic:
      return ParseTrafficBubbleResourceName(resource_name, out);
    case BubbleKind::kRouteName:
      return ParseRouteNameBubbleResourceName(resource_name, out);
    case BubbleKind::kIndoorEntries:
      return ParseIndoorEntriesBubbleResourceName(resource_name, out);
    case BubbleKind::kCompanion:
      return ParseCompanionBubbleResourceName(resource_name, out);
    case BubbleKind::kCamera:
      return ParseCameraBubbleResourceName(resource_name, out);
    case BubbleKind::kEta:
      return ParseEtaBubbleResourceName(resource_name, out);
    case BubbleKind::kRouteLabel:
      return ParseRouteLabelBubbleResourceName(resource_name, out);
    case BubbleKind::kRouteExplain:
      return ParseRouteExplainBubbleResourceName(resource_name, out);
    case BubbleKind::kMarker:
      return ParseMarkerBubbleResourceName(resource_name, out);
    case BubbleKind::kLightCountdown:
      return ParseLightCountdownBubbleResourceName(resource_name, out);
    case BubbleKind::kMultiLightCountdown:
      return ParseMultiLightCountdownBubbleResourceName(resource_name, out);
    case BubbleKind::kViaCircle:
      return ParseViaCircleBubbleResourceName(resource_name, out);
    case BubbleKind::kLightWait:
      return ParseLightWaitBubbleResourceName(resource_name, out);
    case BubbleKind::kTurn:
      return ParseTurnBubbleResourceName(resource_name, out);
    case BubbleKind::kHdLongSolid:
      return ParseHdLongSolidBubbleResourceName(resource_name, out);
    case BubbleKind::kUndergroundPark:
      return ParseUndergroundParkBubbleResourceName(resource_name, out);
    case BubbleKind::kForceDot:
      return ParseForceDotBubbleResourceName(resource_name, out);
    case BubbleKind::kForcePoll:
      return ParseForcePollBubbleResourceName(resource_name, out);
    case BubbleKind::kYawNotice:
      return ParseResourceName<YawNoticeBubbleDrawDescriptor>(resource_name, out);
    case BubbleKind::kRouteAccident:
      return ParseRouteAccidentResourceName(resource_name, out);
    case BubbleKind::kSafeWarning:
      return ParseSafeWarningResourceName(resource_name, out);
    case BubbleKind::kLaneChange:
      return ParseResourceName<HDLaneChangeBubbleDrawDescriptor>(resource_name, out);
  }
}

}  // namespace kavrix
