#include "tests/reference/reference_decoder.h"

#include <utility>

#include "tests/reference/kinds.h"

namespace kavrix::reference {
namespace {

struct Kind {
  const char* marker;
  void (*decode)(const Call& call, Out& out);
};

// In the order of recognition.
constexpr Kind kKinds[] = {
    {".trafficBubble", TrafficBubble},
    {".nameBubble", RouteNameBubble},
    {".inDoorEntriesBubble", IndoorEntriesBubble},
    {".companionBubble", CompanionBubble},
    {".cameraBubble", CameraBubble},
    {".etaBubble", EtaBubble},
    {".labelBubble", RouteLabelBubble},
    {".routeExplainBubble", RouteExplainBubble},
    {".markerBubble", MarkerBubble},
    {".lightCountdownBubble", LightCountdownBubble},
    {".multiLightCountdownBubble", MultiLightCountdownBubble},
    {".viaCircleBubble", ViaCircleBubble},
    {".lightWaitBubble", LightWaitBubble},
    {".turnBubble", TurnBubble},
    {".hdLongSolidBubble", HdLongSolidBubble},
    {".UndergroundParkBubble", UndergroundParkBubble},
    {".ForceDotBubble", ForceDotBubble},
    {".ForcePollBubble", ForcePollBubble},
    {".YawNoticeBubble", YawNoticeBubble},
    {".RouteAccidentBubble", RouteAccidentBubble},
    {".SafeWarningBubble", SafeWarningBubble},
    {".LaneChangeBubble", LaneChangeBubble},
};

}  // namespace

ReferenceDecoder::ReferenceDecoder(std::shared_ptr<KavrixContext> context) : context_(std::move(context)) {}

void ReferenceDecoder::GetBubbleDrawDescriptor(const std::string& resource_name, Out& out,
                                               std::vector<test::SeenRecord>* records) const {
  const Call call{resource_name, *context_, marker_bubble_config_, records};
  const char* const tag = "KavrixMapLayerMgr";
  const char* const function = "GetBubbleDrawDescriptor";
  call.Log(kRoutine, tag, function, "resource_name:", resource_name);
  for (const Kind& kind : kKinds) {
    if (resource_name.find(kind.marker) != std::string::npos) return kind.decode(call, out);
  }
  call.Log(kFailure, tag, function, "resource_name:", resource_name, ", it is a not valid bubble.");
}

void ReferenceDecoder::GetMarkerDrawDescriptor(const std::string& resource_name, Out& out,
                                               std::vector<test::SeenRecord>* records) const {
  MarkerName({resource_name, *context_, marker_bubble_config_, records}, out);
}

}  // namespace kavrix::reference
