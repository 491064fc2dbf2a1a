#ifndef KAVRIX_TOOLS_ICONS_COMMAND_H_
#define KAVRIX_TOOLS_ICONS_COMMAND_H_

#include "tools/command_line.h"

namespace kavrix::tools {

// Exit status: 0 icons found, 1 a query found none.
CommandDescription IconsCommand();

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_ICONS_COMMAND_H_
