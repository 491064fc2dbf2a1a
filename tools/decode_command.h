#ifndef KAVRIX_TOOLS_DECODE_COMMAND_H_
#define KAVRIX_TOOLS_DECODE_COMMAND_H_

#include "tools/command_line.h"

namespace kavrix::tools {

// Exit status: 0 every name decoded, 1 some name failed. Throws StreamError and ConfigError.
CommandDescription DecodeCommand();

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_DECODE_COMMAND_H_
