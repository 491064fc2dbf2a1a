// The camera bubble: one or more road cameras, each with a type and a speed limit.
//
//   name = prefix JSON-object ".cameraBubble"
//   keys : cameras (array of type, speed), scene, is_selected_, is_force_, snap_text, lan, mode, distance,
//          direction
//
// Irregular: each element of "cameras" gives a camera, whatever its JSON type. A broken payload gets no
// style.

#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_transform.h"
#include "map_resource/name_codec.h"
#include "map_resource/resource_name_encoder.h"
#include "util/tagged_log.h"

namespace kavrix {

using logging::LogLevel;

namespace {

struct CameraFormat : JsonFormat<CameraFormat, CameraDrawDescriptor> {
  static constexpr std::string_view kMarker = MarkerOf(BubbleKind::kCamera);
  template <class Keys, class Camera>
  static void List(Keys& keys, Camera& camera) {
    keys.Objects("cameras", camera.cameras, [](auto& item_keys, auto& item) {
      item_keys.Integer("type", item.type);
      item_keys.Integer("speed", item.speed);
    });
    keys.Integer("scene", camera.scene);
    keys.TrueWhenOne("is_selected_", camera.selected);
    keys.TrueWhenOne("is_force_", camera.is_force);
    keys.Text("snap_text", camera.snap_text);
    keys.Text("lan", camera.lan);
    keys.TrueWhenZero("mode", camera.mode_flag);
    keys.Integer("distance", camera.distance);
    keys.Integer("direction", camera.direction);
  }
};

}  // namespace

void MapResourceTransform::ParseCameraBubbleResourceName(const std::string& resource_name,
                                                         std::shared_ptr<BubbleDrawDescriptor>& out) {
  const auto camera = Publish<CameraDrawDescriptor>(out);
  const std::string_view payload = CameraFormat::PayloadOf(resource_name);
  if (!CameraFormat::Read(payload, *camera)) {
    KAVRIX_LOG(LogTagKavrixMapLayerMgr_CameraLayer, LogLevel::kFailure, "parse json failed: " << payload);
    return;
  }

  BubbleLayerConfigContainer config = context_->GetBubbleLayerConfigInLock();
  auto& style = camera->scene == 0 ? config.camera_style : config.camera_scene_style;
  camera->plain_style_values = {style.Word(14), style.Word(15), style.Word(16)};
  camera->mode_style_value = style.Word(camera->mode_flag ? 17 : 18);
  camera->style_name = std::move(style.name);
  KAVRIX_LOG(LogTagKavrixMapLayerMgr_CameraLayer, LogLevel::kRoutine, *camera);
}

std::string EncodeCameraBubbleResourceName(const CameraDrawDescriptor& camera) {
  return EncodeName<CameraFormat>(camera);
}

constexpr BubbleKindInfo kCameraBubbleInfo = MakeInfo<CameraFormat>(
    BubbleKind::kCamera, std::nullopt, PayloadWay::kPrefixAndMarkerStripped, "JSON object");

}  // namespace kavrix
