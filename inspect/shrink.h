#ifndef KAVRIX_INSPECT_SHRINK_H_
#define KAVRIX_INSPECT_SHRINK_H_

#include <optional>
#include <string>

#include "map_resource/bubble_kinds.h"

namespace kavrix::inspect {

// Returns the smallest name found that fails as `resource_name` does: it is of the same kind, its first error
// has the same code, and it has no problem of a code that the name does not have. No character can be left
// out of it. None when the name does not fail.
std::optional<std::string> Shrink(const std::string& resource_name, EntryPoint entry_point);

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_SHRINK_H_
