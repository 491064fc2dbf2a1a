#ifndef KAVRIX_TESTS_REFERENCE_KINDS_H_
#define KAVRIX_TESTS_REFERENCE_KINDS_H_

#include "tests/reference/call.h"

// One function a kind, each in the file of its name.
namespace kavrix::reference {

void TrafficBubble(const Call& call, Out& out);
void RouteNameBubble(const Call& call, Out& out);
void IndoorEntriesBubble(const Call& call, Out& out);
void CompanionBubble(const Call& call, Out& out);
void CameraBubble(const Call& call, Out& out);
void EtaBubble(const Call& call, Out& out);
void RouteLabelBubble(const Call& call, Out& out);
void RouteExplainBubble(const Call& call, Out& out);
void MarkerBubble(const Call& call, Out& out);
void LightCountdownBubble(const Call& call, Out& out);
void MultiLightCountdownBubble(const Call& call, Out& out);
void ViaCircleBubble(const Call& call, Out& out);
void LightWaitBubble(const Call& call, Out& out);
void TurnBubble(const Call& call, Out& out);
void HdLongSolidBubble(const Call& call, Out& out);
void UndergroundParkBubble(const Call& call, Out& out);
void ForceDotBubble(const Call& call, Out& out);
void ForcePollBubble(const Call& call, Out& out);
void YawNoticeBubble(const Call& call, Out& out);
void RouteAccidentBubble(const Call& call, Out& out);
void SafeWarningBubble(const Call& call, Out& out);
void LaneChangeBubble(const Call& call, Out& out);
void MarkerName(const Call& call, Out& out);

}  // namespace kavrix::reference

#endif  // KAVRIX_TESTS_REFERENCE_KINDS_H_
