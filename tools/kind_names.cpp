#include "tools/kind_names.h"

namespace kavrix::tools {

std::string_view MarkerNamesKind() { return kMarkerNameTail.substr(1); }

const BubbleKindInfo* FindKind(std::string_view kind_name) {
  if (kind_name == MarkerNamesKind()) return &kMarkerNameInfo;
  for (std::size_t i = 0; i < kBubbleMarkers.size(); ++i) {
    if (kBubbleMarkers[i].substr(1) == kind_name) return &InfoOf(static_cast<BubbleKind>(i));
  }
  return nullptr;
}

}  // namespace kavrix::tools
