#ifndef KAVRIX_TOOLS_EXPLAIN_COMMAND_H_
#define KAVRIX_TOOLS_EXPLAIN_COMMAND_H_

#include "tools/command_line.h"

namespace kavrix::tools {

// Exit status: 0 every name decodes, 1 some name fails. Throws StreamError and ConfigError.
CommandDescription ExplainCommand();

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_EXPLAIN_COMMAND_H_
