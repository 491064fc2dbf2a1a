#include "tests/support/random_bubbles.h"

#include <array>
#include <limits>

#include "map_resource/bubble_markers.h"

namespace kavrix::test {

std::int32_t RandomBubbles::Int() {
  switch (Below(4)) {
    case 0:
      return 0;
    case 1:
      return Below(200) - 100;
    case 2: {
      constexpr std::array<std::int32_t, 8> kEdges = {1,
                                                      -1,
                                                      32767,
                                                      -32768,
                                                      -25536,
                                                      70000,
                                                      std::numeric_limits<std::int32_t>::max(),
                                                      std::numeric_limits<std::int32_t>::min()};
      return kEdges[static_cast<std::size_t>(Below(kEdges.size()))];
    }
    default:
      return static_cast<std::int32_t>(random_());
  }
}

std::string RandomBubbles::Text() {
  static const std::vector<std::string> kPieces = {"@",
                                                   "_",
                                                   ".",
                                                   "|",
                                                   "\"",
                                                   "\\",
                                                   "/",
                                                   "{",
                                                   "}",
                                                   "[",
                                                   "]",
                                                   ":",
                                                   ",",
                                                   "\n",
                                                   "\r",
                                                   "\t",
                                                   std::string(1, '\0'),
                                                   "\x01",
                                                   "\x1f",
                                                   "\x7f",
                                                   " ",
                                                   "//",
                                                   "/*",
                                                   "*/",
                                                   "\\u0040",
                                                   ".trafficBubble",
                                                   ".etaBubble",
                                                   "Bubble",
                                                   "路线",
                                                   "\xC2\x80",
                                                   "\xE2\x80\xA8",
                                                   "\xEF\xBF\xBD",
                                                   "\xEF\xBB\xBF",
                                                   "\xF0\x9F\x9A\xA6",
                                                   "\xF4\x8F\xBF\xBF"};
  std::string text;
  for (int pieces = Below(6); pieces > 0; --pieces) {
    if (Flag()) {
      text += kPieces[random_() % kPieces.size()];
    } else {
      text += static_cast<char>(Below(128));
    }
  }
  return text;
}

std::string RandomBubbles::PlainField() {
  std::string plain;
  for (const char c : Text()) {
    if (c != '_' && c != '@' && c != '|') plain += c;
  }
  return FindBubbleKind(plain) ? "" : plain;
}

void RandomBubbles::FillTraffic(TrafficDrawDescriptor& traffic) {
  traffic.content = Text();
  traffic.direction = Short();
  traffic.mode_flag = Flag();
  traffic.light_text = Text();
  traffic.scene = Int();
  traffic.extra_type = Int();
}

void RandomBubbles::FillRouteName(BubbleDrawDescriptor& bubble) {
  bubble.content = PlainField();
  bubble.mode_flag = Flag();
  bubble.scene = Int();
  bubble.direction = Short();
}

void RandomBubbles::FillIndoorEntries(IndoorEntriesBubbleDrawDescriptor& entries) {
  entries.content = PlainField();
  entries.mode_flag = Flag();
  entries.lan = PlainField();
  entries.entries_value = Short();
  entries.entries_text = PlainField();
  entries.direction = Short();
}

void RandomBubbles::FillCompanion(CompanionBubbleDrawDescriptor& companion) {
  companion.is_force = Flag();
  companion.time = Text();
  companion.distance = Text();
  companion.fee = Text();
  companion.light = Text();
  companion.label = Text();
  companion.mode_flag = Flag();
  companion.better = Flag();
  companion.scene = Int();
  companion.BubbleDrawDescriptor::scene = Int();
  companion.direction = Short();
}

void RandomBubbles::FillCamera(CameraDrawDescriptor& camera) {
  for (int cameras = Below(4); cameras > 0; --cameras) camera.cameras.push_back({Int(), Int()});
  camera.scene = Int();
  camera.selected = Flag();
  camera.is_force = Flag();
  camera.snap_text = Text();
  camera.lan = Text();
  camera.mode_flag = Flag();
  camera.distance = Int();
  camera.direction = Short();
}

void RandomBubbles::FillEta(DestNameEtaDrawDescriptor& eta) {
  eta.content = PlainField() + (Flag() ? "|" + PlainField() : "");
  eta.sub_text = PlainField();
  eta.mode_flag = Flag();
  eta.scene = Int();
  eta.direction = Short();
}

void RandomBubbles::FillRouteLabel(BubbleDrawDescriptor& label) {
  label.content = PlainField();
  label.mode_flag = Flag();
  label.direction = Short();
}

void RandomBubbles::FillRouteExplain(ExplainBubbleDrawDescriptor& explain) {
  for (int lines = Below(4); lines > 0; --lines) explain.second_content.push_back(Text());
  explain.scene = Int();
  explain.mode_flag = Flag();
  explain.uid = Text();
  explain.explain_content = Text();
  explain.icon = Text();
  explain.lan = Text();
  explain.second_type = Int();
  explain.scene_type = Int();
  explain.bubble_type = Int();
  explain.direction = Short();
}

void RandomBubbles::FillMarkerBubble(BubbleDrawDescriptor& bubble) {
  bubble.scene = Int();
  bubble.mode_flag = Flag();
  bubble.direction = Short();
  bubble.content = Text();
}

void RandomBubbles::FillLightCountdown(LightCountdownTimerDrawDescriptor& light) {
  light.is_force = Flag();
  light.scene = Int();
  light.mode_flag = Flag();
  light.id = Text();
  light.style = Int();
  light.light_type = Int();
  light.turn_arrow_type = Int();
  light.time = Int();
  light.text = Text();
  light.direction = Short();
}

void RandomBubbles::FillMultiLightCountdown(MultiLightCountdownTimerDrawDescriptor& lights) {
  lights.is_force = Flag();
  lights.scene = Int();
  lights.mode_flag = Flag();
  lights.style = Int();
  lights.id = Text();
  lights.is_animation = Flag();
  for (int count = Below(4); count > 0; --count) {
    lights.light_descriptors.push_back({Int(), Int(), Int(), Text(), Int()});
  }
  lights.direction = Short();
}

void RandomBubbles::FillViaCircle(ViaPointDrawDescriptor& via) {
  via.scene = Int();
  via.lan = Text();
  via.mode_flag = Flag();
  via.direction = Short();
  via.route_id = Text();
  via.index = Int();
  via.is_selected = Flag();
  via.is_reached = Flag();
  via.is_main_map = Flag();
  via.resource_id = Int();
}

void RandomBubbles::FillLightWait(LightWaitBubbleDrawDescriptor& bubble) {
  bubble.content = PlainField();
  bubble.mode_flag = Flag();
  bubble.scene = Int();
  bubble.is_force = Flag();
  bubble.direction = Short();
}

void RandomBubbles::FillTurn(TurnArrowBubbleDrawDescriptor& turn) {
  turn.is_force = Flag();
  turn.type = Short();
  turn.direction = Short();
  turn.mode_flag = Flag();
  turn.scene = Int();
  turn.lan = Text();
  turn.distance = Int();
}

void RandomBubbles::FillHdLongSolid(HDLongSolidBubbleDrawDescriptor& bubble) {
  bubble.content = PlainField();
  bubble.mode_flag = Flag();
  bubble.is_force = Flag();
  bubble.direction = Short();
}

void RandomBubbles::FillUndergroundPark(BubbleDrawDescriptor& bubble) {
  bubble.lan = Text();
  bubble.mode_flag = Flag();
  bubble.direction = Short();
  bubble.content = Text();
}

void RandomBubbles::FillForce(BubbleDrawDescriptor& bubble) {
  bubble.mode_flag = Flag();
  bubble.type = Short();
}

void RandomBubbles::FillSelfInitialised(BubbleDrawDescriptor& bubble) {
  bubble.scene = Int();
  bubble.content = Text();
  bubble.lan = Text();
  bubble.type = Short();
  bubble.direction = Short();
  bubble.mode_flag = Flag();
  bubble.is_force = Flag();
}

void RandomBubbles::FillYawNotice(YawNoticeBubbleDrawDescriptor& notice) {
  FillSelfInitialised(notice);
  notice.reason = Int();
}

void RandomBubbles::FillRouteAccident(RouteAccidentBubbleDrawDescriptor& accident) {
  FillSelfInitialised(accident);
  accident.accident_id = Text();
  accident.severity = Int();
}

void RandomBubbles::FillSafeWarning(SafeWarningBubbleDrawDescriptor& warning) {
  FillSelfInitialised(warning);
  warning.category = Int();
  warning.distance = Int();
}

void RandomBubbles::FillLaneChange(HDLaneChangeBubbleDrawDescriptor& change) {
  FillSelfInitialised(change);
  change.target_lane = Int();
  change.distance = Int();
}

void RandomBubbles::FillMarker(MarkerDrawDescriptor& marker) {
  marker.lan = Text();
  marker.mode_flag = Flag();
  marker.scene = Int();
  marker.direction = Short();
  marker.marker_type = Short();
  marker.name = Text();
  marker.resource_id = Int();
  marker.is_main_map = Flag();
}

}  // namespace kavrix::test
