#ifndef KAVRIX_INSPECT_EXPLAINED_JSON_H_
#define KAVRIX_INSPECT_EXPLAINED_JSON_H_

#include <string>
#include <vector>

#include "inspect/explanation.h"

namespace kavrix::inspect {

// One JSON object on one line, newline included. Bytes that are not UTF-8 become U+FFFD.
std::string ToJsonLine(const Explanation& explanation);

// {"resource_name": ..., "number": ..., "problems": [...]}, in the same form.
std::string ToJsonLine(const std::string& resource_name, std::size_t number,
                       const std::vector<Problem>& problems);

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_EXPLAINED_JSON_H_
