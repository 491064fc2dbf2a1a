#include "descriptors/marker_type.h"

#include <ostream>

namespace kavrix {
namespace {

const char* NameOf(MarkerType type) {
  switch (type) {
    case MarkerType::Poi:
      return "Poi";
    case MarkerType::Start:
      return "Start";
    case MarkerType::Destination:
      return "Destination";
    case MarkerType::ViaPoint:
      return "ViaPoint";
    case MarkerType::Parking:
      return "Parking";
    case MarkerType::ChargingStation:
      return "ChargingStation";
    case MarkerType::GasStation:
      return "GasStation";
    case MarkerType::Toll:
      return "Toll";
    case MarkerType::ServiceArea:
      return "ServiceArea";
    case MarkerType::Camera:
      return "Camera";
    case MarkerType::TrafficLight:
      return "TrafficLight";
    case MarkerType::Event:
      return "Event";
    case MarkerType::Home:
      return "Home";
    case MarkerType::Company:
      return "Company";
    case MarkerType::Favorite:
      return "Favorite";
  }
  return nullptr;
}

}  // namespace

std::string MarkerTypeName(MarkerType type) {
  const char* const name = NameOf(type);
  return name == nullptr ? std::to_string(static_cast<std::int32_t>(type)) : name;
}

std::ostream& operator<<(std::ostream& stream, const MarkerType& type) {
  return stream << MarkerTypeName(type);
}

}  // namespace kavrix
