#include "bench/plain/plain_transform.h"

#include <utility>

#include "bench/plain/kinds.h"

namespace kavrix::plain {

PlainTransform::PlainTransform(std::shared_ptr<KavrixContext> context) : context_(std::move(context)) {}

void PlainTransform::GetBubbleDrawDescriptor(const std::string& resource_name, Out& out) const {
  const std::string& name = resource_name;
  const auto has = [&name](const char* marker) { return name.find(marker) != std::string::npos; };
  if (has(".trafficBubble")) return Traffic(*context_, name, out);
  if (has(".nameBubble")) return RouteName(*context_, name, out);
  if (has(".inDoorEntriesBubble")) return IndoorEntries(*context_, name, out);
  if (has(".companionBubble")) return Companion(*context_, name, out);
  if (has(".cameraBubble")) return Camera(*context_, name, out);
  if (has(".etaBubble")) return Eta(*context_, name, out);
  if (has(".labelBubble")) return RouteLabel(*context_, name, out);
  if (has(".routeExplainBubble")) return RouteExplain(name, out);
  if (has(".markerBubble")) return MarkerBubble(marker_bubble_config_, name, out);
  if (has(".lightCountdownBubble")) return LightCountdown(name, out);
  if (has(".multiLightCountdownBubble")) return MultiLightCountdown(*context_, name, out);
  if (has(".viaCircleBubble")) return ViaCircle(name, out);
  if (has(".lightWaitBubble")) return LightWait(*context_, name, out);
  if (has(".turnBubble")) return Turn(*context_, name, out);
  if (has(".hdLongSolidBubble")) return HdLongSolid(*context_, name, out);
  if (has(".UndergroundParkBubble")) return UndergroundPark(name, out);
  if (has(".ForceDotBubble")) return ForceDot(name, out);
  if (has(".ForcePollBubble")) return ForcePoll(name, out);
  if (has(".YawNoticeBubble")) return YawNotice(name, out);
  if (has(".RouteAccidentBubble")) return RouteAccident(name, out);
  if (has(".SafeWarningBubble")) return SafeWarning(name, out);
  if (has(".LaneChangeBubble")) return LaneChange(name, out);
}

void PlainTransform::GetMarkerDrawDescriptor(const std::string& resource_name, Out& out) const {
  MarkerName(resource_name, out);
}

}  // namespace kavrix::plain
