#include "tests/reference/structure.h"

#include <json/reader.h>

#include <cstring>
#include <iterator>
#include <stdexcept>
#include <vector>

#include "map_resource/map_resource_manager.h"
#include "tests/reference/fields.h"
#include "tests/reference/json.h"

#if defined(__GNUC__)
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#endif

namespace kavrix::reference {
namespace {

enum class Form { kJson, kJsonAndTail, kJsonAndDirection, kWholeName, kFields };

struct Shape {
  const char* marker;
  Form form;
  std::vector<std::size_t> numbers;  // the fields that are numbers
};

// In the order of recognition.
const std::vector<Shape>& Shapes() {
  static const std::vector<Shape> kShapes = {
      {".trafficBubble", Form::kJson, {}},
      {".nameBubble", Form::kFields, {1, 2}},
      {".inDoorEntriesBubble", Form::kFields, {1}},
      {".companionBubble", Form::kJsonAndTail, {}},
      {".cameraBubble", Form::kJson, {}},
      {".etaBubble", Form::kFields, {1, 3}},
      {".labelBubble", Form::kFields, {1}},
      {".routeExplainBubble", Form::kJson, {}},
      {".markerBubble", Form::kJson, {}},
      {".lightCountdownBubble", Form::kJsonAndTail, {}},
      {".multiLightCountdownBubble", Form::kJsonAndTail, {}},
      {".viaCircleBubble", Form::kJson, {}},
      {".lightWaitBubble", Form::kFields, {1, 2}},
      {".turnBubble", Form::kJson, {}},
      {".hdLongSolidBubble", Form::kFields, {1}},
      {".UndergroundParkBubble", Form::kJson, {}},
      {".ForceDotBubble", Form::kJson, {}},
      {".ForcePollBubble", Form::kJson, {}},
      {".YawNoticeBubble", Form::kWholeName, {}},
      {".RouteAccidentBubble", Form::kWholeName, {}},
      {".SafeWarningBubble", Form::kJsonAndDirection, {}},
      {".LaneChangeBubble", Form::kWholeName, {}},
  };
  return kShapes;
}

std::string Describe(const Json::Value& value) {
  const std::string place =
      std::to_string(value.getOffsetStart()) + "-" + std::to_string(value.getOffsetLimit());
  switch (value.type()) {
    case Json::stringValue:
      return "text " + place;
    case Json::intValue:
    case Json::uintValue:
      return (value.isInt() ? "int " : "great ") + place;
    case Json::arrayValue: {
      std::string text = "[";
      for (const Json::Value& element : value) text += Describe(element) + ",";
      return text + "] " + place;
    }
    case Json::objectValue: {
      std::string text = "{";
      for (auto member = value.begin(); member != value.end(); ++member) {
        text += member.name() + ":" + Describe(*member) + ",";
      }
      return text + "} " + place;
    }
    default:
      return "other " + place;
  }
}

std::string DescribeJson(const std::string& text) {
  Json::Value checked;
  if (!ParseObject(text, checked)) return "broken";
  Json::Reader reader;
  Json::Value root;
  reader.parse(text, root, false);
  return Describe(root);
}

std::string Places(const std::string& text, char separator) {
  std::string places;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == separator) places += separator + std::to_string(i);
  }
  return places;
}

std::string DescribeNumber(const std::string& text) {
  int number = 0;
  return ToInt(text, number) ? " number" : " none";
}

std::string DescribeTail(const std::string& tail) {
  return Places(tail, '.') + DescribeNumber(Split(tail, '.')[0]);
}

std::string DescribeFields(const std::string& head, const std::vector<std::size_t>& numbers) {
  std::string text = Places(head, '_') + " |" + std::to_string(head.rfind('|'));
  const std::vector<std::string> fields = Split(head, '_');
  for (const std::size_t number : numbers) {
    if (number < fields.size()) text += DescribeNumber(fields[number]);
  }
  return text;
}

std::string WholeNameObject(std::string name) {
  const std::string prefix = MapResourceManager::kavrix_resource_prefix;
  std::size_t dropped = 0;
  if (name.compare(0, prefix.size(), prefix) == 0) dropped = prefix.size();
  const std::size_t begin = name.find('{', dropped);
  const std::size_t end = name.rfind('}');
  if (begin == std::string::npos || end == std::string::npos || end < begin) return "no object";
  return std::to_string(begin) + DescribeJson(name.substr(begin, end - begin + 1));
}

std::string DescribePayload(const Shape& shape, const std::string& name) {
  if (shape.form == Form::kWholeName) return WholeNameObject(name);
  const bool is_cut = shape.form == Form::kJson || shape.form == Form::kJsonAndDirection;
  const std::string payload =
      is_cut ? BetweenPrefixAndMarker(name, std::strlen(shape.marker)) : AfterPrefix(name);
  if (shape.form == Form::kJson) return DescribeJson(payload);
  const std::vector<std::string> parts = Split(payload, '@');
  std::string text = Places(payload, '@');
  if (parts.size() != 2) return text;
  text += shape.form == Form::kFields ? DescribeFields(parts[0], shape.numbers) : DescribeJson(parts[0]);
  return text + (shape.form == Form::kJsonAndDirection ? DescribeNumber(parts[1]) : DescribeTail(parts[1]));
}

}  // namespace

std::string StructureOf(const std::string& name, bool is_marker_name) {
  static const Shape kMarkerName = {".marker", Form::kJson, {}};
  const Shape* shape = is_marker_name ? &kMarkerName : nullptr;
  for (auto kind = Shapes().begin(); shape == nullptr && kind != Shapes().end(); ++kind) {
    if (name.find(kind->marker) != std::string::npos) shape = &*kind;
  }
  if (shape == nullptr) return "no kind";
  try {
    return shape->marker + (" " + DescribePayload(*shape, name));
  } catch (const std::out_of_range&) {
    return std::string(shape->marker) + " too short";
  }
}

}  // namespace kavrix::reference
