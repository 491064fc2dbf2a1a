#include "descriptors/marker_type.h"

#include <gtest/gtest.h>

#include <limits>
#include <sstream>
#include <string>

namespace kavrix::test {
namespace {

std::string Printed(MarkerType type) {
  std::ostringstream stream;
  stream << type;
  return stream.str();
}

// Names and image keys in use hold both sides of each row.
TEST(MarkerTypeTest, EveryKindKeepsItsNumberAndItsName) {
  const char* const names[] = {
      "Poi",         "Start",  "Destination",  "ViaPoint", "Parking", "ChargingStation", "GasStation", "Toll",
      "ServiceArea", "Camera", "TrafficLight", "Event",    "Home",    "Company",         "Favorite"};
  std::int32_t number = 0;
  for (const char* const name : names) EXPECT_EQ(Printed(MarkerType(number++)), name);
}

TEST(MarkerTypeTest, NumberThatIsNoKindIsPrintedAsSuch) {
  EXPECT_EQ(Printed(MarkerType(-1)), "-1");
  EXPECT_EQ(Printed(MarkerType(15)), "15");
  EXPECT_EQ(Printed(MarkerType(32767)), "32767");
  EXPECT_EQ(Printed(MarkerType(std::numeric_limits<std::int32_t>::min())), "-2147483648");
}

TEST(MarkerTypeTest, NumberIsTheSameUnderEveryStateOfTheStream) {
  std::ostringstream stream;
  stream << std::hex << std::showbase << std::showpos << MarkerType(255);
  EXPECT_EQ(stream.str(), "255");
}

TEST(MarkerTypeTest, PrintingReturnsItsStream) {
  std::ostringstream stream;
  stream << MarkerType::Home << '_' << MarkerType::Poi;
  EXPECT_EQ(stream.str(), "Home_Poi");
}

}  // namespace
}  // namespace kavrix::test
