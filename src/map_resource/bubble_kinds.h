#ifndef KAVRIX_MAP_RESOURCE_BUBBLE_KINDS_H_
#define KAVRIX_MAP_RESOURCE_BUBBLE_KINDS_H_

#include <json/forwards.h>

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "key_list/key_lister.h"
#include "map_resource/bubble_markers.h"

namespace kavrix {

// The function of MapResourceTransform that decodes a name.
enum class EntryPoint { kBubble, kMarker };

// How a parser reaches the payload of a name.
enum class PayloadWay {
  kPrefixAndMarkerStripped = 1,  // the payload is what stands between them
  kPrefixStripped = 2,           // the rest of the name is split into fields, the marker in the last one
  kWholeName = 3,                // the descriptor finds its JSON object in the whole name
};

// What can be done with the names of a kind without knowing the kind. Fields are a JSON object: the payload's
// own keys, for kinds without JSON the names of the fields, and "direction" where it stands after "@".
struct NameCodec {
  // What a name carries, in reading order.
  void (*list_keys)(KeyLister&);
  // The canonical name. Throws EncodeError for unknown keys, wrong types and values that would not come back.
  std::string (*encode_fields)(const Json::Value& fields);
  // The fields of a name; nullopt when its payload does not parse. Throws EncodeError for texts that are not
  // UTF-8 and std::out_of_range for names shorter than the prefix.
  std::optional<std::string> (*read_fields)(const std::string& name);
};

// What a kind tells about its names, for tools and documents.
struct BubbleKindInfo {
  std::string_view marker;
  EntryPoint entry_point;
  const char* stem;  // of the kind's files
  const char* descriptor_type;
  std::optional<std::uint16_t> kind_code;  // written to `bubble_kind`; nullopt: left at 0
  PayloadWay way;
  const char* grammar;  // of what stands between prefix and marker
  NameCodec codec;

  // "trafficBubble"; "marker" for marker names.
  std::string_view Name() const { return marker.substr(1); }
};

// What else the list says of the kinds, in its order.
inline constexpr std::array<const char*, kBubbleKinds.size()> kKindStems = {
#define KAVRIX_BUBBLE_KIND(Kind, stem, marker, Descriptor, Parse, Encode) #stem,
#include "map_resource/bubble_kinds.def"
};
inline constexpr std::array<const char*, kBubbleKinds.size()> kDescriptorTypes = {
#define KAVRIX_BUBBLE_KIND(Kind, stem, marker, Descriptor, Parse, Encode) #Descriptor,
#include "map_resource/bubble_kinds.def"
};

// Each is defined in the kind's own file.
#define KAVRIX_BUBBLE_KIND(Kind, stem, marker, Descriptor, Parse, Encode) \
  extern const BubbleKindInfo k##Kind##BubbleInfo;
#include "map_resource/bubble_kinds.def"

const BubbleKindInfo& InfoOf(BubbleKind kind);

// The names of the second entry point, which have no BubbleKind.
extern const BubbleKindInfo kMarkerNameInfo;

// All kinds in the order of recognition, marker names last.
const std::array<const BubbleKindInfo*, kBubbleKinds.size() + 1>& AllKindInfos();

// The kind with this name; null when there is none.
const BubbleKindInfo* FindKindInfo(std::string_view name);

}  // namespace kavrix

#endif  // KAVRIX_MAP_RESOURCE_BUBBLE_KINDS_H_
