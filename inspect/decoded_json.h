#ifndef KAVRIX_INSPECT_DECODED_JSON_H_
#define KAVRIX_INSPECT_DECODED_JSON_H_

#include <string>
#include <vector>

#include "inspect/decoder.h"
#include "inspect/explanation.h"

namespace kavrix::inspect {

// One JSON object on one line, newline included. Bytes that are not UTF-8 become U+FFFD.
std::string ToJsonLine(const Decoded& decoded);

// The same with a further member, "codes": those of the problems.
std::string ToJsonLine(const Decoded& decoded, const std::vector<Problem>& problems);

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_DECODED_JSON_H_
