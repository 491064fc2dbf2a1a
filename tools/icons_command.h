#ifndef KAVRIX_TOOLS_ICONS_COMMAND_H_
#define KAVRIX_TOOLS_ICONS_COMMAND_H_

#include <CLI/CLI.hpp>

namespace kavrix::tools {

// Adds "icons" to the tool; its exit status is stored in `status`: 0 icons found, 1 a query found none.
void AddIconsCommand(CLI::App& app, int& status);

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_ICONS_COMMAND_H_
