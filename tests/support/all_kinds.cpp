#include "tests/support/all_kinds.h"

#include <array>
#include <fstream>
#include <nlohmann/json.hpp>

namespace kavrix::test {

std::vector<const BubbleKindInfo*> AllKinds() {
  std::vector<const BubbleKindInfo*> kinds;
  for (std::size_t i = 0; i < kBubbleMarkers.size(); ++i)
    kinds.push_back(&InfoOf(static_cast<BubbleKind>(i)));
  kinds.push_back(&kMarkerNameInfo);
  return kinds;
}

std::vector<std::string> GoldenNames(BubbleKind kind) {
  static constexpr std::array<const char*, 22> kStems = {"traffic",
                                                         "route_name",
                                                         "indoor_entries",
                                                         "companion",
                                                         "camera",
                                                         "eta",
                                                         "route_label",
                                                         "route_explain",
                                                         "marker",
                                                         "light_countdown",
                                                         "multi_light_countdown",
                                                         "via_circle",
                                                         "light_wait",
                                                         "turn",
                                                         "hd_long_solid",
                                                         "underground_park",
                                                         "force_dot",
                                                         "force_poll",
                                                         "yaw_notice",
                                                         "route_accident",
                                                         "safe_warning",
                                                         "lane_change"};
  const std::string stem = kStems[static_cast<std::size_t>(kind)];
  std::ifstream golden(KAVRIX_SOURCE_DIR "/tests/golden/" + stem + "_bubble.jsonl");
  std::vector<std::string> names;
  for (std::string line; std::getline(golden, line);) {
    names.push_back(nlohmann::json::parse(line).at("resource_name"));
  }
  return names;
}

}  // namespace kavrix::test
