#ifndef KAVRIX_DESCRIPTORS_MARKER_TYPE_H_
#define KAVRIX_DESCRIPTORS_MARKER_TYPE_H_

#include <cstdint>
#include <iosfwd>
#include <string>

#include "../util/export.h"

namespace kavrix {

// The kinds of marker on a navigation map. Resource names carry the values, and image keys the names in lower
// case: neither ever changes.
enum class MarkerType : std::int32_t {
  Poi = 0,
  Start = 1,
  Destination = 2,
  ViaPoint = 3,
  Parking = 4,
  ChargingStation = 5,
  GasStation = 6,
  Toll = 7,
  ServiceArea = 8,
  Camera = 9,
  TrafficLight = 10,
  Event = 11,
  Home = 12,
  Company = 13,
  Favorite = 14,
};

// Returns the name, such as "Poi", or for any other value its number.
KAVRIX_EXPORT std::string MarkerTypeName(MarkerType type);
KAVRIX_EXPORT std::ostream& operator<<(std::ostream& stream, const MarkerType& type);

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_MARKER_TYPE_H_
