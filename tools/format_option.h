#ifndef KAVRIX_TOOLS_FORMAT_OPTION_H_
#define KAVRIX_TOOLS_FORMAT_OPTION_H_

#include <string>
#include <vector>

#include "tools/command_line.h"

namespace kavrix::tools {

// Whether standard output goes to a person.
bool ToTerminal();

// Adds --format to a command, with "text" on a terminal and "json" elsewhere unless the user says otherwise.
void AddFormatOption(Command& command, std::string& format, const std::vector<std::string>& formats);

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_FORMAT_OPTION_H_
