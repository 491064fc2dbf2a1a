#ifndef KAVRIX_TOOLS_JSON_OUTPUT_H_
#define KAVRIX_TOOLS_JSON_OUTPUT_H_

#include <string>

#include "tools/decoding.h"

namespace kavrix::tools {

// One JSON object on one line, newline included. Bytes that are not UTF-8 become U+FFFD.
std::string ToJsonLine(const Decoded& decoded);

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_JSON_OUTPUT_H_
