#ifndef KAVRIX_TOOLS_DRAW_COMMAND_H_
#define KAVRIX_TOOLS_DRAW_COMMAND_H_

#include "tools/command_line.h"

namespace kavrix::tools {

// Exit status: 0 the name decoded, 1 it failed. Throws UsageError, StreamError and ConfigError.
CommandDescription DrawCommand();

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_DRAW_COMMAND_H_
