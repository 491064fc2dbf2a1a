#ifndef KAVRIX_TOOLS_ENCODE_COMMAND_H_
#define KAVRIX_TOOLS_ENCODE_COMMAND_H_

#include <CLI/CLI.hpp>

namespace kavrix::tools {

// Adds "encode" to the tool; its exit status is stored in `status`: 0 every bubble encoded, 1 some could not
// be.
void AddEncodeCommand(CLI::App& app, int& status);

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_ENCODE_COMMAND_H_
