#ifndef KAVRIX_TOOLS_KINDS_COMMAND_H_
#define KAVRIX_TOOLS_KINDS_COMMAND_H_

#include <CLI/CLI.hpp>

namespace kavrix::tools {

// Adds "kinds" to the tool; its exit status is stored in `status` as for "decode".
void AddKindsCommand(CLI::App& app, int& status);

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_KINDS_COMMAND_H_
