#ifndef KAVRIX_TOOLS_KIND_NAMES_H_
#define KAVRIX_TOOLS_KIND_NAMES_H_

#include <string>
#include <string_view>

#include "map_resource/bubble_kinds.h"

namespace kavrix::tools {

// "marker", the name under which marker names stand beside the kinds of bubbles.
std::string_view MarkerNamesKind();

// The kind with this name, such as "etaBubble", or null.
const BubbleKindInfo* FindKind(std::string_view kind_name);

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_KIND_NAMES_H_
