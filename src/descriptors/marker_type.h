#ifndef KAVRIX_DESCRIPTORS_MARKER_TYPE_H_
#define KAVRIX_DESCRIPTORS_MARKER_TYPE_H_

#include <cstdint>
#include <iosfwd>
#include <string>

#include "../util/export.h"

namespace kavrix {

/// The kinds of marker on a navigation map. Resource names carry the values, and image keys the names in
/// lower case: neither ever changes.
enum class MarkerType : std::int32_t {
  Poi = 0,              ///< A point of interest.
  Start = 1,            ///< The start of the route.
  Destination = 2,      ///< The destination of the route.
  ViaPoint = 3,         ///< An intermediate stop.
  Parking = 4,          ///< A car park.
  ChargingStation = 5,  ///< A charging station.
  GasStation = 6,       ///< A filling station.
  Toll = 7,             ///< A toll station.
  ServiceArea = 8,      ///< A service area.
  Camera = 9,           ///< A road camera.
  TrafficLight = 10,    ///< A traffic light.
  Event = 11,           ///< A traffic event.
  Home = 12,            ///< The user's home.
  Company = 13,         ///< The user's place of work.
  Favorite = 14,        ///< A favourite place.
};

/// Returns the name, such as "Poi", or for any other value its number.
KAVRIX_EXPORT std::string MarkerTypeName(MarkerType type);
/// Writes what MarkerTypeName returns.
KAVRIX_EXPORT std::ostream& operator<<(std::ostream& stream, const MarkerType& type);

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_MARKER_TYPE_H_
