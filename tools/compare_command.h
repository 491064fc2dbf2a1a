#ifndef KAVRIX_TOOLS_COMPARE_COMMAND_H_
#define KAVRIX_TOOLS_COMPARE_COMMAND_H_

#include "tools/command_line.h"

namespace kavrix::tools {

// Exit status: 0 all the same, 1 something differs. Throws StreamError, ConfigError and
// inspect::CompareError.
CommandDescription CompareCommand();

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_COMPARE_COMMAND_H_
