// The four kinds whose descriptors fill themselves from a JSON object.

#include "bench/plain/kinds.h"
#include "bench/plain/plain_fields.h"
#include "descriptors/descriptors.h"

namespace kavrix::plain {
namespace {

void ReadSharedKeys(const Json::Value& root, BubbleDrawDescriptor& bubble) {
  bubble.scene = IntOr(root, "scene", bubble.scene);
  bubble.content = TextOr(root, "content", bubble.content);
  bubble.lan = TextOr(root, "lan", bubble.lan);
  bubble.type = static_cast<std::int16_t>(IntOr(root, "type", bubble.type));
  bubble.direction = static_cast<std::int16_t>(IntOr(root, "direction", bubble.direction));
  bubble.mode_flag = IntOr(root, "mode", bubble.mode_flag ? 1 : 0) == 0;
  bubble.is_force = IntOr(root, "is_force_", bubble.is_force ? 1 : 0) == 1;
}

}  // namespace

void YawNotice(const std::string& name, Out& out) {
  auto notice = std::make_shared<YawNoticeBubbleDrawDescriptor>();
  Json::Value root;
  if (Parse(BetweenBraces(name), root)) {
    ReadSharedKeys(root, *notice);
    notice->reason = IntOr(root, "reason", notice->reason);
  }
  out = notice;
}

void RouteAccident(const std::string& name, Out& out) {
  auto accident = std::make_shared<RouteAccidentBubbleDrawDescriptor>();
  Json::Value root;
  if (Parse(BetweenBraces(name), root)) {
    ReadSharedKeys(root, *accident);
    accident->accident_id = TextOr(root, "accident_id", accident->accident_id);
    accident->severity = IntOr(root, "severity", accident->severity);
  }
  out = accident;
}

void LaneChange(const std::string& name, Out& out) {
  auto change = std::make_shared<HDLaneChangeBubbleDrawDescriptor>();
  Json::Value root;
  if (Parse(BetweenBraces(name), root)) {
    ReadSharedKeys(root, *change);
    change->target_lane = IntOr(root, "target_lane", change->target_lane);
    change->distance = IntOr(root, "distance", change->distance);
  }
  out = change;
}

void SafeWarning(const std::string& name, Out& out) {
  const std::vector<std::string> parts = Split(BetweenPrefixAndMarker(name, 18), '@');
  if (parts.size() != 2) return;
  auto warning = std::make_shared<SafeWarningBubbleDrawDescriptor>();
  Json::Value root;
  if (Parse(parts[0], root)) {
    ReadSharedKeys(root, *warning);
    warning->category = IntOr(root, "category", warning->category);
    warning->distance = IntOr(root, "distance", warning->distance);
  }
  int direction = 0;
  if (ToInt(parts[1], direction)) warning->direction = static_cast<std::int16_t>(direction);
  out = warning;
}

}  // namespace kavrix::plain
