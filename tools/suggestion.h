#ifndef KAVRIX_TOOLS_SUGGESTION_H_
#define KAVRIX_TOOLS_SUGGESTION_H_

#include <string>
#include <string_view>
#include <vector>

#include "map_resource/bubble_kinds.h"

namespace kavrix::tools {

// Returns "; did you mean "decode"?" for the nearest word; empty when none is near.
std::string DidYouMean(std::string_view text, const std::vector<std::string>& words);

// Returns the names of all kinds.
std::vector<std::string> KindNames();

// Returns the kind with this name. Throws UsageError, with the nearest kind, when there is none.
const BubbleKindInfo& KindCalled(const std::string& name);

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_SUGGESTION_H_
