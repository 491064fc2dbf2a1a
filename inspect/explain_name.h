#ifndef KAVRIX_INSPECT_EXPLAIN_NAME_H_
#define KAVRIX_INSPECT_EXPLAIN_NAME_H_

#include <string>

#include "inspect/explanation.h"
#include "inspect/transform_setup.h"
#include "map_resource/bubble_kinds.h"

namespace kavrix::inspect {

// ExplainBubbleName or ExplainMarkerName, by the entry point.
Explanation ExplainName(const std::string& resource_name, EntryPoint entry_point,
                        const TransformSetup& setup);

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_EXPLAIN_NAME_H_
