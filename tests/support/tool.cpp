#include "tests/support/tool.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <fstream>
#include <regex>
#include <sstream>
#include <stdexcept>

#include "tests/support/read_file.h"

namespace kavrix::test {
namespace {

// A file for the child process, deleted with the object.
class TemporaryFile {
 public:
  explicit TemporaryFile(const std::string& text = "") {
    const int descriptor = mkstemp(path_.data());
    if (descriptor < 0) throw std::runtime_error("cannot make a temporary file");
    close(descriptor);
    std::ofstream(path_, std::ios::binary) << text;
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() { unlink(path_.c_str()); }

  int Open(int flags) const { return open(path_.c_str(), flags); }
  std::string Text() const { return ReadFile(path_); }

 private:
  std::string path_ = "/tmp/kavrix_test_XXXXXX";
};

}  // namespace

ToolResult RunProgram(const std::vector<std::string>& command, const std::string& input) {
  const TemporaryFile in(input);
  const TemporaryFile out;
  const TemporaryFile err;
  const pid_t child = fork();
  if (child < 0) throw std::runtime_error("cannot fork");
  if (child == 0) {
    dup2(in.Open(O_RDONLY), STDIN_FILENO);
    dup2(out.Open(O_WRONLY), STDOUT_FILENO);
    dup2(err.Open(O_WRONLY), STDERR_FILENO);
    std::vector<char*> arguments;
    for (const std::string& argument : command) arguments.push_back(const_cast<char*>(argument.c_str()));
    arguments.push_back(nullptr);
    execv(arguments[0], arguments.data());
    _exit(127);
  }
  int wait_status = 0;
  waitpid(child, &wait_status, 0);
  return {WIFEXITED(wait_status) ? WEXITSTATUS(wait_status) : -1, out.Text(), err.Text()};
}

std::vector<std::string> ToolResult::Lines() const {
  std::vector<std::string> lines;
  std::istringstream stream(output);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

std::vector<nlohmann::json> ToolResult::JsonLines() const {
  std::vector<nlohmann::json> objects;
  for (const std::string& line : Lines()) objects.push_back(nlohmann::json::parse(line));
  return objects;
}

ToolResult RunTool(const std::vector<std::string>& arguments, const std::string& input) {
  std::vector<std::string> command = {KAVRIX_TOOL};
  command.insert(command.end(), arguments.begin(), arguments.end());
  return RunProgram(command, input);
}

ToolResult RunShell(const std::string& command) {
  return RunProgram({"/bin/sh", "-c", "TOOL='" KAVRIX_TOOL "'; " + command});
}

ToolResult RunShellInFolder(const std::string& command) {
  return RunShell("folder=$(mktemp -d) && cd \"$folder\" || exit; trap 'rm -r \"$folder\"' EXIT; " + command);
}

std::vector<std::string> ToolCommands() {
  const std::regex command_line("^  ([a-z]+) .*");  // an option begins with a dash
  std::vector<std::string> commands;
  for (const std::string& line : RunTool({"--help"}).Lines()) {
    std::smatch match;
    if (std::regex_match(line, match, command_line)) commands.push_back(match[1]);
  }
  return commands;
}

}  // namespace kavrix::test
