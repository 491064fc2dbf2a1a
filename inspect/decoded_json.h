#ifndef KAVRIX_INSPECT_DECODED_JSON_H_
#define KAVRIX_INSPECT_DECODED_JSON_H_

#include <string>

#include "inspect/decoder.h"

namespace kavrix::inspect {

// One JSON object on one line, newline included. Bytes that are not UTF-8 become U+FFFD.
std::string ToJsonLine(const Decoded& decoded);

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_DECODED_JSON_H_
