#ifndef KAVRIX_TOOLS_DECODE_COMMAND_H_
#define KAVRIX_TOOLS_DECODE_COMMAND_H_

#include <CLI/CLI.hpp>

namespace kavrix::tools {

// Adds "decode" to the tool. When it is the one called, its exit status is stored in `status`: 0 every name
// decoded, 1 some name failed. Throws StreamError and ConfigError.
void AddDecodeCommand(CLI::App& app, int& status);

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_DECODE_COMMAND_H_
