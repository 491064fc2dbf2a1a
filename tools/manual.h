#ifndef KAVRIX_TOOLS_MANUAL_H_
#define KAVRIX_TOOLS_MANUAL_H_

#include <string>
#include <vector>

#include "tools/command_line.h"

// Manual pages, in the man macros of roff.
namespace kavrix::tools {

std::string ManualOf(const CommandHelp& command);

// The page of the tool itself, which lists the commands.
std::string ManualOfTool(const CommandHelp& tool, const std::vector<CommandHelp>& commands);

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_MANUAL_H_
