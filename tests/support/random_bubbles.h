#ifndef KAVRIX_TESTS_SUPPORT_RANDOM_BUBBLES_H_
#define KAVRIX_TESTS_SUPPORT_RANDOM_BUBBLES_H_

#include <random>
#include <string>

#include "descriptors/descriptors.h"

namespace kavrix::test {

// Fills what names of a kind carry with values that lean to the awkward: extremes, separators, markers,
// escapes.
class RandomBubbles {
 public:
  explicit RandomBubbles(unsigned seed) : random_(seed) {}

  void FillTraffic(TrafficDrawDescriptor& traffic);
  void FillRouteName(BubbleDrawDescriptor& bubble);
  void FillIndoorEntries(IndoorEntriesBubbleDrawDescriptor& entries);
  void FillCompanion(CompanionBubbleDrawDescriptor& companion);
  void FillCamera(CameraDrawDescriptor& camera);
  void FillEta(DestNameEtaDrawDescriptor& eta);
  void FillRouteLabel(BubbleDrawDescriptor& label);
  void FillRouteExplain(ExplainBubbleDrawDescriptor& explain);
  void FillMarkerBubble(BubbleDrawDescriptor& bubble);
  void FillLightCountdown(LightCountdownTimerDrawDescriptor& light);
  void FillMultiLightCountdown(MultiLightCountdownTimerDrawDescriptor& lights);
  void FillViaCircle(ViaPointDrawDescriptor& via);
  void FillLightWait(LightWaitBubbleDrawDescriptor& bubble);
  void FillTurn(TurnArrowBubbleDrawDescriptor& turn);
  void FillHdLongSolid(HDLongSolidBubbleDrawDescriptor& bubble);
  void FillUndergroundPark(BubbleDrawDescriptor& bubble);
  void FillForce(BubbleDrawDescriptor& bubble);
  void FillYawNotice(YawNoticeBubbleDrawDescriptor& notice);
  void FillRouteAccident(RouteAccidentBubbleDrawDescriptor& accident);
  void FillSafeWarning(SafeWarningBubbleDrawDescriptor& warning);
  void FillLaneChange(HDLaneChangeBubbleDrawDescriptor& change);
  void FillMarker(MarkerDrawDescriptor& marker);

 private:
  int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
  bool Flag() { return Below(2) == 0; }
  std::int32_t Int();
  std::int16_t Short() { return static_cast<std::int16_t>(Int()); }
  std::string Text();        // any UTF-8, for JSON
  std::string PlainField();  // UTF-8 without '_', '@', '|' and whole markers
  void FillSelfInitialised(BubbleDrawDescriptor& bubble);

  std::mt19937 random_;
};

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_RANDOM_BUBBLES_H_
