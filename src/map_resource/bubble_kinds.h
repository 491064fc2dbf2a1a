#ifndef KAVRIX_MAP_RESOURCE_BUBBLE_KINDS_H_
#define KAVRIX_MAP_RESOURCE_BUBBLE_KINDS_H_

#include <json/forwards.h>

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "key_list/key_lister.h"
#include "key_list/key_tracer.h"
#include "map_resource/bubble_markers.h"

namespace kavrix {

// The function of MapResourceTransform that decodes a name.
enum class EntryPoint { kBubble, kMarker };

// How a parser cuts the payload out of a name.
enum class PayloadWay {
  kPrefixAndMarkerStripped = 1,  // the payload is the bytes between them
  kPrefixStripped = 2,           // the rest of the name is split, the marker is part of the last field
  kWholeName = 3,                // the descriptor finds its JSON object in the whole name
};

// Handles the names of a kind through JSON instead of its descriptor type. `fields` is a JSON object: the
// keys of the payload or, for kinds without JSON, the names of the fields, and "direction" where the name has
// it after "@".
struct NameCodec {
  // Lists what a name carries, in reading order.
  void (*list_keys)(KeyLister&);
  // Returns the canonical name. Throws EncodeError for unknown keys, wrong types and values that would decode
  // to something else.
  std::string (*encode_fields)(const Json::Value& fields);
  // Returns the fields of a name; nullopt when its payload does not parse. Throws EncodeError for strings
  // that are not UTF-8 and, unless the way is kWholeName, std::out_of_range for names shorter than the
  // prefix.
  std::optional<std::string> (*read_fields)(const std::string& name);
  // Notes what reading the name touches. False when its payload does not parse. Throws std::out_of_range as
  // read_fields does.
  bool (*trace)(const std::string& name, NameTrace& trace);
};

// Describes the names of a kind, for tools and documents.
struct BubbleKindInfo {
  std::string_view marker;
  EntryPoint entry_point;
  const char* stem;  // the stem of the kind's files
  const char* descriptor_type;
  std::optional<std::uint16_t> kind_code;  // written to `bubble_kind`; nullopt: left at 0
  PayloadWay way;
  const char* grammar;  // of the bytes between prefix and marker
  NameCodec codec;

  // Such as "trafficBubble"; "marker" for marker names.
  std::string_view Name() const { return marker.substr(1); }
};

// The other columns of the list of kinds, in its order.
inline constexpr std::array<const char*, kBubbleKinds.size()> kKindStems = {
#define KAVRIX_BUBBLE_KIND(Kind, stem, marker, Descriptor, Parse, Encode) #stem,
#include "map_resource/bubble_kinds.def"
};
inline constexpr std::array<const char*, kBubbleKinds.size()> kDescriptorTypes = {
#define KAVRIX_BUBBLE_KIND(Kind, stem, marker, Descriptor, Parse, Encode) #Descriptor,
#include "map_resource/bubble_kinds.def"
};

// The kind's own file defines it.
#define KAVRIX_BUBBLE_KIND(Kind, stem, marker, Descriptor, Parse, Encode) \
  extern const BubbleKindInfo k##Kind##BubbleInfo;
#include "map_resource/bubble_kinds.def"

const BubbleKindInfo& InfoOf(BubbleKind kind);

// Describes the names of the second entry point, which have no BubbleKind.
extern const BubbleKindInfo kMarkerNameInfo;

// All kinds in the order of recognition, marker names last.
const std::array<const BubbleKindInfo*, kBubbleKinds.size() + 1>& AllKindInfos();

// Returns the kind with this name; null when there is none.
const BubbleKindInfo* FindKindInfo(std::string_view name);

}  // namespace kavrix

#endif  // KAVRIX_MAP_RESOURCE_BUBBLE_KINDS_H_
