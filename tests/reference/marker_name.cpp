#include "descriptors/marker_draw_descriptor.h"
#include "descriptors/marker_type.h"
#include "map_resource/map_resource_manager.h"
#include "tests/reference/fields.h"
#include "tests/reference/json.h"
#include "tests/reference/kinds.h"

namespace kavrix::reference {
namespace {

void ReadKeys(const Json::Value& root, MarkerDrawDescriptor& marker) {
  marker.lan = TextOr(root, "lan", marker.lan);
  marker.mode_flag = IntOr(root, "mode", marker.mode_flag ? 1 : 0) == 0;
  marker.scene = IntOr(root, "scene", marker.scene);
  marker.direction = Low16(IntOr(root, "direction", marker.direction));
  marker.marker_type = Low16(IntOr(root, "marker_type", marker.marker_type));
  marker.name = TextOr(root, "name", marker.name);
  marker.resource_id = IntOr(root, "resource_id", marker.resource_id);
  marker.is_main_map = IntOr(root, "is_main_map", marker.is_main_map ? 1 : 0) != 0;
}

std::string ImageKey(const MarkerDrawDescriptor& marker) {
  std::ostringstream stream;
  stream.imbue(std::locale::classic());
  stream << MarkerType(marker.marker_type);
  std::string type = stream.str();
  for (char& c : type) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return MapResourceManager::kavrix_resource_prefix + type + "_" + marker.name;
}

}  // namespace

void MarkerName(const Call& call, Out& out) {
  Json::Value root;
  if (!ParseObject(BetweenPrefixAndMarker(call.name, 7), root)) {
    call.Log(kFailure, "KavrixMapLayerMgr_BubbleTraffic", "GetMarkerDrawDescriptor",
             "parse json failed: ", call.name);
    return;
  }
  auto marker = std::make_shared<MarkerDrawDescriptor>();
  out = marker;
  marker->bubble_kind = 21;
  ReadKeys(root, *marker);
  marker->is_force = true;
  marker->content = ImageKey(*marker);
}

}  // namespace kavrix::reference
