#ifndef KAVRIX_TOOLS_CONFIG_COMMAND_H_
#define KAVRIX_TOOLS_CONFIG_COMMAND_H_

#include "tools/command_line.h"

namespace kavrix::tools {

// Exit status: 0 success, 1 the configuration is wrong.
CommandDescription ConfigCommand();

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_CONFIG_COMMAND_H_
