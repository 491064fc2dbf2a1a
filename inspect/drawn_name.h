#ifndef KAVRIX_INSPECT_DRAWN_NAME_H_
#define KAVRIX_INSPECT_DRAWN_NAME_H_

#include <optional>
#include <string>
#include <vector>

#include "inspect/decoder.h"
#include "inspect/explanation.h"

namespace kavrix::inspect {

// Returns the name of a kind as `kinds` prints it, such as "trafficBubble" or "marker"; empty for a bubble
// name that has no marker.
std::string KindNameOf(const Decoded& decoded, EntryPoint entry_point);

// Says why the decode of a name with these problems failed: the message of the first error. Empty when it did
// not fail.
std::string WhyFailed(const Decoded& decoded, const std::vector<Problem>& problems);

// Returns the picture of what a name decoded to; where `out` was left untouched, one which says so.
std::string PictureOf(const Decoded& decoded, EntryPoint entry_point, const std::string& problem,
                      std::optional<bool> is_day = {});

// Returns the name with its mode set to day or night; none where the place of its mode is not known, or it
// has none. Style values depend on the mode, so that only such a name shows what the other mode looks like.
std::optional<std::string> InMode(const Explanation& explanation, bool is_day);

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_DRAWN_NAME_H_
