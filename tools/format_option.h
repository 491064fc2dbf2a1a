#ifndef KAVRIX_TOOLS_FORMAT_OPTION_H_
#define KAVRIX_TOOLS_FORMAT_OPTION_H_

#include <string>
#include <vector>

#include "tools/command_line.h"

namespace kavrix::tools {

// Returns whether standard output is a terminal.
bool ToTerminal();

// Returns whether standard output shows colours: it is a terminal, and NO_COLOR is not set.
bool ShowsColour();

// Adds --format to a command. Its default is "text" on a terminal and "json" elsewhere.
void AddFormatOption(Command& command, std::string& format, const std::vector<std::string>& formats);

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_FORMAT_OPTION_H_
