#ifndef KAVRIX_TOOLS_CHECK_COMMAND_H_
#define KAVRIX_TOOLS_CHECK_COMMAND_H_

#include "tools/command_line.h"

namespace kavrix::tools {

// Exit status: 0 no name has a problem, 1 some name has one. Throws StreamError.
CommandDescription CheckCommand();

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_CHECK_COMMAND_H_
