#ifndef KAVRIX_INSPECT_STYLE_CHOICE_H_
#define KAVRIX_INSPECT_STYLE_CHOICE_H_

#include <map>
#include <string>
#include <vector>

#include "inspect/name_reading.h"
#include "inspect/style_origins.h"

namespace kavrix::inspect {

// For each member that a style record gave, the keys of the name that chose the value: first those that chose
// the record, then those that only chose the number in it, each in reading order. Found by building names in
// which one flag or integer is another.
std::map<std::string, std::vector<std::string>> FindStyleChoice(const NameReading& reading);

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_STYLE_CHOICE_H_
