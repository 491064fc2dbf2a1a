#include "tests/map_resource/resource_catalogue_other_unit.h"

#include "map_resource/resource_catalogue.h"

namespace kavrix::test::other_unit {

const std::map<std::uint32_t, std::uint32_t>& DayNightResourceMap() { return R::DayNightResourceMap; }
const std::map<std::uint32_t, std::string>& ResourceID2DescriptionMap() {
  return R::ResourceID2DescriptionMap;
}
const std::string& FontName() { return Layer::Style::FONT_NAME; }

}  // namespace kavrix::test::other_unit
