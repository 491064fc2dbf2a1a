#ifndef KAVRIX_TOOLS_COMMAND_LINE_H_
#define KAVRIX_TOOLS_COMMAND_LINE_H_

#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

// The arguments of the tool. Only command_line.cpp sees the argument parser, whose header takes seconds to
// compile.
namespace CLI {
class App;
}

namespace kavrix::tools {

// Arguments that make no sense together. The tool says so and ends with status 2.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

using Words = std::vector<std::string>;

// What the help text, the manual page and the completion tell of an option or of the arguments.
struct OptionHelp {
  std::string name;   // "--config", or "" for the arguments
  std::string value;  // what it takes, such as "FILE" for a path; empty for a flag
  std::string usage;  // of arguments: how many there may be, "FILE", "[FILE]" or "[FILE]..."
  std::string help;
  Words words;  // to complete the value with
};

// What they tell of a command, or of the tool itself.
struct CommandHelp {
  std::string name;
  std::string help;
  std::optional<OptionHelp> arguments;
  std::vector<OptionHelp> options;
  std::string details;
  std::string exit_status;
  std::vector<std::string> examples;  // shell commands
};

// One command while its options are listed, in the order of its help text. Each option fills a variable,
// which must outlive the parse. An option that takes a value is given with its name: "--config FILE".
class Command {
 public:
  Command(CLI::App& app, CommandHelp& help) : app_(app), help_(help) {}

  // `usage` says how many there may be: "FILE", "[FILE]" or "[FILE]...".
  void Arguments(const std::string& usage, std::vector<std::string>& values, const std::string& help,
                 const Words& words = {});
  void Text(const std::string& option, std::optional<std::string>& value, const std::string& help,
            const Words& words = {});
  // An option that may be given more than once.
  void Texts(const std::string& option, std::vector<std::string>& values, const std::string& help);
  // `value` holds the default.
  void Integer(const std::string& option, int& value, int least, int most, const std::string& help);
  void Choice(const std::string& option, std::string& value, const Words& choices, const std::string& help);
  void Flag(const std::string& option, bool& value, const std::string& help);
  void Details(const std::string& text);
  void ExitStatus(const std::string& text);
  void Example(const std::string& shell_command);

 private:
  CLI::App& app_;
  CommandHelp& help_;
};

// A command by its name, such as "decode". `options` lists the options and returns what the command does when
// it is the one called: its result is the exit status of the tool.
struct CommandDescription {
  const char* name;
  const char* help;
  std::function<std::function<int()>(Command&)> options;
};

using Commands = std::vector<CommandDescription>;

Words NamesOf(const Commands& commands);

// Names the nearest of the commands.
UsageError UnknownCommand(const std::string& name, const Words& commands);

// Describes the tool without a command: its name is empty.
CommandHelp DescribeTool();

std::vector<CommandHelp> DescribeCommands(const Commands& commands);

// Parses the arguments and runs the command that they call. Help and version go to standard output. Returns
// the exit status: 2 for arguments that no command takes, with a message on standard error.
int RunCommandLine(const Commands& commands, int argc, const char* const* argv);

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_COMMAND_LINE_H_
