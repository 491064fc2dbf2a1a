#include "map_resource/bubble_kinds.h"

namespace kavrix {

const std::array<const BubbleKindInfo*, kBubbleKinds.size() + 1>& AllKindInfos() {
  static constexpr std::array<const BubbleKindInfo*, kBubbleKinds.size() + 1> kInfos = {
#define KAVRIX_BUBBLE_KIND(Kind, stem, marker, Descriptor, Parse, Encode) &k##Kind##BubbleInfo,
#include "map_resource/bubble_kinds.def"
      &kMarkerNameInfo,
  };
  return kInfos;
}

const BubbleKindInfo& InfoOf(BubbleKind kind) { return *AllKindInfos()[static_cast<std::size_t>(kind)]; }

const BubbleKindInfo* FindKindInfo(std::string_view name) {
  for (const BubbleKindInfo* const info : AllKindInfos()) {
    if (info->Name() == name) return info;
  }
  return nullptr;
}

}  // namespace kavrix
