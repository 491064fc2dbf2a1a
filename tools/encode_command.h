#ifndef KAVRIX_TOOLS_ENCODE_COMMAND_H_
#define KAVRIX_TOOLS_ENCODE_COMMAND_H_

#include "tools/command_line.h"

namespace kavrix::tools {

// Exit status: 0 every bubble encoded, 1 some could not be.
CommandDescription EncodeCommand();

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_ENCODE_COMMAND_H_
