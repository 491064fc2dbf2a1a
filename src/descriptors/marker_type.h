#ifndef KAVRIX_DESCRIPTORS_MARKER_TYPE_H_
#define KAVRIX_DESCRIPTORS_MARKER_TYPE_H_

#include <cstdint>
#include <ostream>
#include <string>

namespace kavrix {

// The kinds of marker on a navigation map. The values travel in resource names and the names, lower-cased, in
// image keys: neither ever changes for a kind.
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

// The name of the kind, such as "Poi", or the number of a value that is no kind.
std::string MarkerTypeName(MarkerType type);
std::ostream& operator<<(std::ostream& stream, const MarkerType& type);

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_MARKER_TYPE_H_
