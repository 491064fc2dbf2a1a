#ifndef KAVRIX_INSPECT_KEY_PROBLEMS_H_
#define KAVRIX_INSPECT_KEY_PROBLEMS_H_

#include <string>
#include <string_view>
#include <vector>

#include "inspect/explanation.h"
#include "inspect/name_reading.h"

namespace kavrix::inspect {

// Adds what is wrong with the keys and fields of a name and with their values.
void AddKeyProblems(const NameReading& reading, std::vector<Problem>& problems);

// A text in double quotes, what is not UTF-8 replaced by U+FFFD.
std::string Quoted(std::string_view text);

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_KEY_PROBLEMS_H_
