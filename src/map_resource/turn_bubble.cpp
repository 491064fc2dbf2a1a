// The turn bubble: the next manoeuvre, an arrow with the distance to it.
//
//   name = prefix JSON-object ".turnBubble"
//   keys : is_force_, type, direction, mode, scene, lan, distance
//
// Irregular: the name is logged before it is read, and nothing else is, not even a broken payload. The kind
// code is set after the payload is cut out, so a name shorter than the prefix leaves it 0. Of the style only
// the name is filled, whether or not the payload parses.

#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_transform.h"
#include "map_resource/name_codec.h"
#include "map_resource/resource_name_encoder.h"
#include "util/tagged_log.h"

namespace kavrix {

using logging::LogLevel;

namespace {

constexpr std::uint16_t kKindCode = 10;

struct TurnFormat : JsonFormat<TurnFormat, TurnArrowBubbleDrawDescriptor> {
  static constexpr std::string_view kMarker = MarkerOf(BubbleKind::kTurn);
  template <class Keys, class Turn>
  static void List(Keys& keys, Turn& turn) {
    keys.TrueWhenOne("is_force_", turn.is_force);
    keys.Integer("type", turn.type);
    keys.Integer("direction", turn.direction);
    keys.TrueWhenZero("mode", turn.mode_flag);
    keys.Integer("scene", turn.scene);
    keys.Text("lan", turn.lan);
    keys.Integer("distance", turn.distance);
  }
  // A broken payload is no failure.
  template <class Reading = Decoding>
  static bool ReadName(const std::string& name, TurnArrowBubbleDrawDescriptor& turn, Reading reading = {}) {
    Read(PayloadOf(name), turn, reading);
    return true;
  }
};

}  // namespace

void MapResourceTransform::ParseTurnBubbleResourceName(const std::string& resource_name,
                                                       std::shared_ptr<BubbleDrawDescriptor>& out) {
  KAVRIX_LOG(LogTagKavrixMapLayerMgr_TurnArrow, LogLevel::kRoutine, " resource_name:" << resource_name);
  const auto turn = Publish<TurnArrowBubbleDrawDescriptor>(out);
  const std::string_view payload = TurnFormat::PayloadOf(resource_name);
  turn->bubble_kind = kKindCode;
  turn->style_name = std::move(context_->GetBubbleLayerConfigInLock().turn_style.name);
  TurnFormat::Read(payload, *turn);
}

std::string EncodeTurnBubbleResourceName(const TurnArrowBubbleDrawDescriptor& turn) {
  return EncodeName<TurnFormat>(turn);
}

constexpr BubbleKindInfo kTurnBubbleInfo =
    MakeInfo<TurnFormat>(BubbleKind::kTurn, kKindCode, PayloadWay::kPrefixAndMarkerStripped, "JSON object");

}  // namespace kavrix
