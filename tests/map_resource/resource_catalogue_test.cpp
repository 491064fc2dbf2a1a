#include "map_resource/resource_catalogue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <type_traits>
#include <vector>

#include "tests/map_resource/resource_catalogue_other_unit.h"

namespace kavrix::test {
namespace {

using R::DayNightResourceMap;
using R::ResourceID2DescriptionMap;
using ::testing::StartsWith;

// Reads resource_catalogue.txt, which has an id and its description on each line.
std::map<std::uint32_t, std::string> ReadList() {
  std::ifstream file(std::string(KAVRIX_SOURCE_DIR) + "/tests/map_resource/resource_catalogue.txt");
  std::map<std::uint32_t, std::string> descriptions;
  std::string id;
  std::string description;
  while (file >> id && file.ignore(1) && std::getline(file, description)) {
    descriptions[static_cast<std::uint32_t>(std::stoul(id, nullptr, 16))] = description;
  }
  return descriptions;
}

TEST(ResourceCatalogueTest, Has101IconsAnd202Descriptions) {
  EXPECT_EQ(DayNightResourceMap.size(), 101U);
  EXPECT_EQ(ResourceID2DescriptionMap.size(), 202U);
}

TEST(ResourceCatalogueTest, EveryIdHasTheDescriptionOfTheListBesideThisFile) {
  EXPECT_EQ(ResourceID2DescriptionMap, ReadList());
}

TEST(ResourceCatalogueTest, EveryNightIdIsItsDayIdPlus0x100) {
  for (const auto& [day, night] : DayNightResourceMap) {
    EXPECT_EQ(night, day + 0x100) << std::hex << day;
    EXPECT_EQ(day & 0xff00, 0U) << std::hex << day;
  }
}

TEST(ResourceCatalogueTest, DayAndNightIdsTogetherAreTheIdsWithADescription) {
  for (const auto& [day, night] : DayNightResourceMap) {
    EXPECT_EQ(ResourceID2DescriptionMap.count(day), 1U) << std::hex << day;
    EXPECT_EQ(ResourceID2DescriptionMap.count(night), 1U) << std::hex << night;
    EXPECT_EQ(DayNightResourceMap.count(night), 0U) << std::hex << night;
  }
}

TEST(ResourceCatalogueTest, IdsOutsideTheTableHaveNoDescription) {
  for (const std::uint32_t id : {0x0U, 0x3U, 0x5U, 0xcU, 0xdU, 0xfU, 0x1000cU, 0x1002cU, 0x10037U, 0x2000fU,
                                 0x30037U, 0x40000U, 0x100U, 0x103U, 0x10000U, 0x201U}) {
    EXPECT_EQ(ResourceID2DescriptionMap.count(id), 0U) << std::hex << id;
    EXPECT_EQ(DayNightResourceMap.count(id), 0U) << std::hex << id;
  }
}

TEST(ResourceCatalogueTest, DescriptionsBeginWithDayOrNight) {
  for (const auto& [day, night] : DayNightResourceMap) {
    EXPECT_THAT(ResourceID2DescriptionMap.at(day), StartsWith("\xE7\x99\xBD\xE5\xA4\xA9-"));
    EXPECT_THAT(ResourceID2DescriptionMap.at(night), StartsWith("\xE5\xA4\x9C\xE9\x97\xB4-"));
  }
}

TEST(ResourceCatalogueTest, NightDescriptionsAreTheDayOnesButForTwoWithABlank) {
  std::vector<std::uint32_t> different;
  for (const auto& [day, night] : DayNightResourceMap) {
    const std::size_t head = std::string("白天").size();
    if (ResourceID2DescriptionMap.at(day).substr(head) != ResourceID2DescriptionMap.at(night).substr(head)) {
      different.push_back(night);
    }
  }
  EXPECT_THAT(different, ::testing::ElementsAre(0x3011f, 0x30122));
  EXPECT_EQ(ResourceID2DescriptionMap.at(0x3001f), "白天-警示牌-隧道开灯");
  EXPECT_EQ(ResourceID2DescriptionMap.at(0x3011f), "夜间-警示牌- 隧道开灯");
  EXPECT_EQ(ResourceID2DescriptionMap.at(0x30022), "白天-警示牌-连续弯路");
  EXPECT_EQ(ResourceID2DescriptionMap.at(0x30122), "夜间-警示牌- 连续弯路");
}

TEST(ResourceCatalogueTest, FourDescriptionsAreSharedByTwoIcons) {
  std::map<std::string, std::vector<std::uint32_t>> ids_of;
  for (const auto& [day, night] : DayNightResourceMap) {
    ids_of[ResourceID2DescriptionMap.at(day)].push_back(day);
    ids_of[ResourceID2DescriptionMap.at(night)].push_back(night);
  }
  std::map<std::string, std::vector<std::uint32_t>> shared;
  for (const auto& [description, ids] : ids_of) {
    if (ids.size() > 1) shared[description] = ids;
  }
  const std::map<std::string, std::vector<std::uint32_t>> expected = {
      {"白天-车标罗盘东", {0x6, 0xb}},
      {"夜间-车标罗盘东", {0x106, 0x10b}},
      {"白天-警示牌-傍山险路", {0x30001, 0x30002}},
      {"夜间-警示牌-傍山险路", {0x30101, 0x30102}},
      {"白天-警示牌-注意落石", {0x30015, 0x30016}},
      {"夜间-警示牌-注意落石", {0x30115, 0x30116}},
      {"白天-警示牌-堤坝路", {0x30029, 0x3002a}},
      {"夜间-警示牌-堤坝路", {0x30129, 0x3012a}},
  };
  EXPECT_EQ(shared, expected);
}

TEST(ResourceCatalogueTest, TrafficLightIsARoutePointIcon) {
  EXPECT_EQ(DayNightResourceMap.at(0x1000b), 0x1010bU);
  EXPECT_EQ(ResourceID2DescriptionMap.at(0x1000b), "白天-红绿灯");
  EXPECT_EQ(ResourceID2DescriptionMap.at(0x1010b), "夜间-红绿灯");
}

TEST(ResourceCatalogueTest, FontNameIsEmpty) { EXPECT_EQ(Layer::Style::FONT_NAME, ""); }

TEST(ResourceCatalogueTest, NothingOfItCanBeChanged) {
  EXPECT_TRUE(std::is_const_v<decltype(R::DayNightResourceMap)>);
  EXPECT_TRUE(std::is_const_v<decltype(R::ResourceID2DescriptionMap)>);
  EXPECT_TRUE(std::is_const_v<decltype(Layer::Style::FONT_NAME)>);
}

TEST(ResourceCatalogueTest, EverySourceFileHasItsOwnEqualCopy) {
  EXPECT_NE(&other_unit::DayNightResourceMap(), &R::DayNightResourceMap);
  EXPECT_NE(&other_unit::ResourceID2DescriptionMap(), &R::ResourceID2DescriptionMap);
  EXPECT_NE(&other_unit::FontName(), &Layer::Style::FONT_NAME);
  EXPECT_EQ(other_unit::DayNightResourceMap(), R::DayNightResourceMap);
  EXPECT_EQ(other_unit::ResourceID2DescriptionMap(), R::ResourceID2DescriptionMap);
  EXPECT_EQ(other_unit::FontName(), Layer::Style::FONT_NAME);
}

// The tables are complete before any code of this file runs, even its static initialisers.
const std::size_t count_before_main = ResourceID2DescriptionMap.size();

TEST(ResourceCatalogueTest, IsThereBeforeMain) { EXPECT_EQ(count_before_main, 202U); }

}  // namespace
}  // namespace kavrix::test
