#ifndef KAVRIX_MAP_RESOURCE_BUBBLE_KINDS_H_
#define KAVRIX_MAP_RESOURCE_BUBBLE_KINDS_H_

#include <json/forwards.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "map_resource/bubble_markers.h"
#include "util/key_lister.h"

namespace kavrix {

// How a parser reaches the payload of a name.
enum class PayloadWay {
  kPrefixAndMarkerStripped = 1,  // the payload is what stands between them
  kPrefixStripped = 2,           // the rest of the name is split into fields, the marker in the last one
  kWholeName = 3,                // the descriptor finds its JSON object in the whole name
};

// What can be done with the names of a kind whatever they carry. Fields are a JSON object: the payload's own
// keys, for kinds without JSON the names of the fields, and "direction" where it stands behind "@".
struct NameCodec {
  // What a name carries, in reading order.
  void (*list_keys)(KeyLister&);
  // The canonical name. Throws EncodeError for unknown keys, wrong types and values that would not come back.
  std::string (*encode_fields)(const Json::Value& fields);
  // The fields of a name; none when its payload does not parse. Throws EncodeError for texts that are not
  // UTF-8 and std::out_of_range for names shorter than the prefix.
  std::optional<std::string> (*read_fields)(const std::string& name);
};

// What a kind tells about its names, for tools and documents.
struct BubbleKindInfo {
  const char* descriptor_type;
  std::optional<std::uint16_t> kind_code;  // written to `bubble_kind`; none: left at 0
  PayloadWay way;
  const char* grammar;  // of what stands between prefix and marker
  NameCodec codec;
};

const BubbleKindInfo& InfoOf(BubbleKind kind);

// The names of the second entry point, which have no BubbleKind.
extern const BubbleKindInfo kMarkerNameInfo;

// Each defined in the kind's own file.
extern const BubbleKindInfo kTrafficBubbleInfo;
extern const BubbleKindInfo kRouteNameBubbleInfo;
extern const BubbleKindInfo kIndoorEntriesBubbleInfo;
extern const BubbleKindInfo kCompanionBubbleInfo;
extern const BubbleKindInfo kCameraBubbleInfo;
extern const BubbleKindInfo kEtaBubbleInfo;
extern const BubbleKindInfo kRouteLabelBubbleInfo;
extern const BubbleKindInfo kRouteExplainBubbleInfo;
extern const BubbleKindInfo kMarkerBubbleInfo;
extern const BubbleKindInfo kLightCountdownBubbleInfo;
extern const BubbleKindInfo kMultiLightCountdownBubbleInfo;
extern const BubbleKindInfo kViaCircleBubbleInfo;
extern const BubbleKindInfo kLightWaitBubbleInfo;
extern const BubbleKindInfo kTurnBubbleInfo;
extern const BubbleKindInfo kHdLongSolidBubbleInfo;
extern const BubbleKindInfo kUndergroundParkBubbleInfo;
extern const BubbleKindInfo kForceDotBubbleInfo;
extern const BubbleKindInfo kForcePollBubbleInfo;
extern const BubbleKindInfo kYawNoticeBubbleInfo;
extern const BubbleKindInfo kRouteAccidentBubbleInfo;
extern const BubbleKindInfo kSafeWarningBubbleInfo;
extern const BubbleKindInfo kLaneChangeBubbleInfo;

}  // namespace kavrix

#endif  // KAVRIX_MAP_RESOURCE_BUBBLE_KINDS_H_
