#ifndef KAVRIX_INSPECT_NEAREST_H_
#define KAVRIX_INSPECT_NEAREST_H_

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "inspect/explanation.h"
#include "map_resource/bubble_markers.h"

namespace kavrix::inspect {

// Returns the one of `words` that `text` was most likely meant to be: the same but for the case of letters,
// or at most two characters away (one in words of up to five, none in words of two). None when no word is so
// close.
std::optional<std::string> NearestWord(std::string_view text, const std::vector<std::string>& words);

struct NearMarker {
  BubbleKind kind;
  ByteRange bytes;
  bool differs_in_case_only;
};

// Returns the place in a name that differs from a marker in the case of letters only or, without one, that is
// at most two characters away from a marker: of several the closest, then the first in the order of kinds.
std::optional<NearMarker> FindNearMarker(std::string_view name);

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_NEAREST_H_
