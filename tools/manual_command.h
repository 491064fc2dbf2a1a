#ifndef KAVRIX_TOOLS_MANUAL_COMMAND_H_
#define KAVRIX_TOOLS_MANUAL_COMMAND_H_

#include "tools/command_line.h"

namespace kavrix::tools {

// `all` returns every command of the tool, this one among them.
CommandDescription ManualCommand(Commands (*all)());

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_MANUAL_COMMAND_H_
