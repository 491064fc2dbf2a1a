#ifndef KAVRIX_TOOLS_SCHEMA_COMMAND_H_
#define KAVRIX_TOOLS_SCHEMA_COMMAND_H_

#include "tools/command_line.h"

namespace kavrix::tools {

CommandDescription SchemaCommand();

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_SCHEMA_COMMAND_H_
