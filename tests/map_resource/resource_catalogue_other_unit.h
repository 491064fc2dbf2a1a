#ifndef KAVRIX_TESTS_MAP_RESOURCE_RESOURCE_CATALOGUE_OTHER_UNIT_H_
#define KAVRIX_TESTS_MAP_RESOURCE_RESOURCE_CATALOGUE_OTHER_UNIT_H_

#include <cstdint>
#include <map>
#include <string>

// Gives the catalogue as another source file sees it.
namespace kavrix::test::other_unit {

const std::map<std::uint32_t, std::uint32_t>& DayNightResourceMap();
const std::map<std::uint32_t, std::string>& ResourceID2DescriptionMap();
const std::string& FontName();

}  // namespace kavrix::test::other_unit

#endif  // KAVRIX_TESTS_MAP_RESOURCE_RESOURCE_CATALOGUE_OTHER_UNIT_H_
