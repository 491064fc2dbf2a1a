#ifndef KAVRIX_TOOLS_KINDS_COMMAND_H_
#define KAVRIX_TOOLS_KINDS_COMMAND_H_

#include "tools/command_line.h"

namespace kavrix::tools {

// Exit status: 0.
CommandDescription KindsCommand();

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_KINDS_COMMAND_H_
