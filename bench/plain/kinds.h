#ifndef KAVRIX_BENCH_PLAIN_KINDS_H_
#define KAVRIX_BENCH_PLAIN_KINDS_H_

#include <memory>
#include <string>

#include "config/marker_bubble_config.h"
#include "context/kavrix_context.h"
#include "descriptors/bubble_draw_descriptor.h"

// One function a kind. Those that take a context read a style from it or, for the multi-light, a type.
namespace kavrix::plain {

using Out = std::shared_ptr<BubbleDrawDescriptor>;

void Traffic(const KavrixContext& context, const std::string& name, Out& out);
void RouteName(const KavrixContext& context, const std::string& name, Out& out);
void IndoorEntries(const KavrixContext& context, const std::string& name, Out& out);
void Companion(const KavrixContext& context, const std::string& name, Out& out);
void Camera(const KavrixContext& context, const std::string& name, Out& out);
void Eta(const KavrixContext& context, const std::string& name, Out& out);
void RouteLabel(const KavrixContext& context, const std::string& name, Out& out);
void RouteExplain(const std::string& name, Out& out);
void MarkerBubble(const MarkerBubbleConfig& config, const std::string& name, Out& out);
void LightCountdown(const std::string& name, Out& out);
void MultiLightCountdown(const KavrixContext& context, const std::string& name, Out& out);
void ViaCircle(const std::string& name, Out& out);
void LightWait(const KavrixContext& context, const std::string& name, Out& out);
void Turn(const KavrixContext& context, const std::string& name, Out& out);
void HdLongSolid(const KavrixContext& context, const std::string& name, Out& out);
void UndergroundPark(const std::string& name, Out& out);
void ForceDot(const std::string& name, Out& out);
void ForcePoll(const std::string& name, Out& out);
void YawNotice(const std::string& name, Out& out);
void RouteAccident(const std::string& name, Out& out);
void SafeWarning(const std::string& name, Out& out);
void LaneChange(const std::string& name, Out& out);
void MarkerName(const std::string& name, Out& out);

}  // namespace kavrix::plain

#endif  // KAVRIX_BENCH_PLAIN_KINDS_H_
