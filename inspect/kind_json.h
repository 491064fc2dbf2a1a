#ifndef KAVRIX_INSPECT_KIND_JSON_H_
#define KAVRIX_INSPECT_KIND_JSON_H_

#include <string>
#include <string_view>
#include <vector>

#include "map_resource/bubble_kinds.h"

namespace kavrix::inspect {

// What the names of a kind carry, in reading order.
std::vector<KeyInfo> KeysOf(const BubbleKindInfo& info);

// One JSON object on one line, newline included.
std::string ToJsonLine(const BubbleKindInfo& info, std::string_view sample);

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_KIND_JSON_H_
