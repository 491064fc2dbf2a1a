#include <json/value.h>

#include "map_resource/map_resource_transform.h"
#include "util/json_util.h"

// Uses JsonCpp here and in the library.
int main() {
  Json::Value value;
  value["marker_type"] = 12;
  std::shared_ptr<kavrix::BubbleDrawDescriptor> out;
  kavrix::MapResourceTransform::ParseMarkerResourceName(value, out);
  return out != nullptr && kavrix::JsonUtil::IntValue(value, "marker_type", 0) == 12 ? 0 : 1;
}
