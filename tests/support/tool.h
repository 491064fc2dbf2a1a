#ifndef KAVRIX_TESTS_SUPPORT_TOOL_H_
#define KAVRIX_TESTS_SUPPORT_TOOL_H_

#include <algorithm>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace kavrix::test {

struct ToolResult {
  int status = -1;  // exit status; -1 if a signal ended the tool
  std::string output;
  std::string errors;

  std::vector<std::string> Lines() const;
  std::vector<nlohmann::json> JsonLines() const;
};

// Runs the real tool as a process, without a terminal.
ToolResult RunTool(const std::vector<std::string>& arguments, const std::string& input = "");

// Runs a program, given by its path and its arguments.
ToolResult RunProgram(const std::vector<std::string>& command, const std::string& input = "");

// Runs a shell command in which $TOOL is the tool, for pipes and redirections.
ToolResult RunShell(const std::string& command);

// Runs it in a folder of its own, which is removed afterwards.
ToolResult RunShellInFolder(const std::string& command);

// Returns the names of the tool's commands, which its help lists.
std::vector<std::string> ToolCommands();

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_TOOL_H_
