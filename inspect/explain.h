#ifndef KAVRIX_INSPECT_EXPLAIN_H_
#define KAVRIX_INSPECT_EXPLAIN_H_

#include <string>
#include <vector>

#include "inspect/explanation.h"
#include "inspect/transform_setup.h"

namespace kavrix::inspect {

/// Explains a bubble name, as GetBubbleDrawDescriptor reads it: where every member of the descriptor came
/// from, what only steers, what is ignored and what is wrong. Decodes the name several times, and writes no
/// log records. The context of the setup must not be null. Throws EncodeError where the prefix holds a
/// marker, so that no names of the kind can be built to compare with, and what the standard library throws
/// when memory runs out.
Explanation ExplainBubbleName(const std::string& resource_name, const TransformSetup& setup);

/// Explains a marker name likewise, as GetMarkerDrawDescriptor reads it.
Explanation ExplainMarkerName(const std::string& resource_name, const TransformSetup& setup);

/// Returns only the problems of a bubble name, in a fraction of the time.
std::vector<Problem> CheckBubbleName(const std::string& resource_name);
/// Returns only the problems of a marker name.
std::vector<Problem> CheckMarkerName(const std::string& resource_name);

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_EXPLAIN_H_
