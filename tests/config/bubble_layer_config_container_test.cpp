#include "config/bubble_layer_config_container.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "config/marker_bubble_config.h"

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;
using ::testing::Pair;

TEST(BubbleLayerConfigContainerTest, Holds21RecordsInOrderWithTheirNumbersOfValues) {
  const BubbleLayerConfigContainer config;
  std::vector<std::pair<std::string, std::size_t>> records;
  ForEachStyleRecord(config, [&](const char* name, const auto& record) {
    records.emplace_back(name, record.values.size());
  });
  EXPECT_THAT(
      records,
      ElementsAre(Pair("route_name_style", 4), Pair("traffic_style", 12), Pair("companion_style", 8),
                  Pair("camera_style", 18), Pair("eta_style", 12), Pair("eta_scene_style", 12),
                  Pair("route_label_style", 4), Pair("camera_scene_style", 18), Pair("traffic_nav_style", 14),
                  Pair("route_name_scene_style", 4), Pair("turn_style", 2), Pair("unread_style_12", 18),
                  Pair("unread_style_13", 2), Pair("hd_long_solid_style", 4), Pair("unread_style_15", 2),
                  Pair("indoor_entries_style", 4), Pair("light_wait_style", 4), Pair("unread_style_18", 2),
                  Pair("unread_style_19", 2), Pair("unread_style_20", 2), Pair("traffic_scene_style", 11)));
}

TEST(BubbleLayerConfigContainerTest, VisitingOrderIsTheOrderInMemory) {
  BubbleLayerConfigContainer config;
  std::uintptr_t earlier = 0;
  ForEachStyleRecord(config, [&](const char* name, auto& record) {
    const auto address = reinterpret_cast<std::uintptr_t>(&record);
    EXPECT_GT(address, earlier) << name;
    earlier = address;
  });
}

TEST(BubbleLayerConfigContainerTest, VisitReachesEachMemberUnderItsOwnName) {
  BubbleLayerConfigContainer config;
  ForEachStyleRecord(config, [](const char* name, auto& record) { record.name = name; });
  EXPECT_EQ(config.route_name_style.name, "route_name_style");
  EXPECT_EQ(config.traffic_style.name, "traffic_style");
  EXPECT_EQ(config.companion_style.name, "companion_style");
  EXPECT_EQ(config.camera_style.name, "camera_style");
  EXPECT_EQ(config.eta_style.name, "eta_style");
  EXPECT_EQ(config.eta_scene_style.name, "eta_scene_style");
  EXPECT_EQ(config.route_label_style.name, "route_label_style");
  EXPECT_EQ(config.camera_scene_style.name, "camera_scene_style");
  EXPECT_EQ(config.traffic_nav_style.name, "traffic_nav_style");
  EXPECT_EQ(config.route_name_scene_style.name, "route_name_scene_style");
  EXPECT_EQ(config.turn_style.name, "turn_style");
  EXPECT_EQ(config.unread_style_12.name, "unread_style_12");
  EXPECT_EQ(config.unread_style_13.name, "unread_style_13");
  EXPECT_EQ(config.hd_long_solid_style.name, "hd_long_solid_style");
  EXPECT_EQ(config.unread_style_15.name, "unread_style_15");
  EXPECT_EQ(config.indoor_entries_style.name, "indoor_entries_style");
  EXPECT_EQ(config.light_wait_style.name, "light_wait_style");
  EXPECT_EQ(config.unread_style_18.name, "unread_style_18");
  EXPECT_EQ(config.unread_style_19.name, "unread_style_19");
  EXPECT_EQ(config.unread_style_20.name, "unread_style_20");
  EXPECT_EQ(config.traffic_scene_style.name, "traffic_scene_style");
}

// Works at compile time: no table is built at start or destroyed at exit.
static_assert(IsFloatValue("eta_style", 2) && IsFloatValue("eta_style", 8));
static_assert(!IsFloatValue("eta_style", 3) && !IsFloatValue("eta_style", 0));
static_assert(!IsFloatValue("turn_style", 2) && !IsFloatValue("", 3));

TEST(BubbleLayerConfigContainerTest, FloatValuesAreThoseOfRecordsThatExist) {
  const BubbleLayerConfigContainer config;
  for (const FloatValues& floats : kFloatValues) {
    std::size_t value_count = floats.record == "marker_bubble" ? MarkerBubbleConfig::kValueCount : 0;
    ForEachStyleRecord(config, [&](const std::string& name, const auto& record) {
      if (name == floats.record) value_count = record.kValueCount;
    });
    for (const std::size_t number : floats.numbers) EXPECT_LE(number, value_count) << floats.record;
  }
}

TEST(BubbleLayerConfigContainerTest, IsAPlainValue) {
  EXPECT_TRUE(std::is_copy_constructible_v<BubbleLayerConfigContainer>);
  EXPECT_TRUE(std::is_copy_assignable_v<BubbleLayerConfigContainer>);
  EXPECT_TRUE(std::is_nothrow_move_constructible_v<BubbleLayerConfigContainer>);
  EXPECT_FALSE(std::is_polymorphic_v<BubbleLayerConfigContainer>);
}

}  // namespace
}  // namespace kavrix::test
