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

// One command while its options are listed, in the order of its help text. Each option fills a variable,
// which must outlive the parse.
class Command {
 public:
  explicit Command(CLI::App& app) : app_(app) {}

  void Arguments(const std::string& name, std::vector<std::string>& values, const std::string& help);
  void Text(const std::string& option, std::optional<std::string>& value, const std::string& help);
  // An option that may be given more than once.
  void Texts(const std::string& option, std::vector<std::string>& values, const std::string& help);
  void Integer(const std::string& option, int& value, int least, int most, const std::string& help);
  void Choice(const std::string& option, std::string& value, const std::vector<std::string>& choices,
              const std::string& help);
  void Flag(const std::string& option, bool& value, const std::string& help);
  void Footer(const std::string& text);

 private:
  CLI::App& app_;
};

// A command by its name, such as "decode". `options` lists the options and returns what the command does when
// it is the one called: its result is the exit status of the tool.
struct CommandDescription {
  const char* name;
  const char* help;
  std::function<std::function<int()>(Command&)> options;
};

// Parses the arguments and runs the command that they call. Help and version go to standard output. Returns
// the exit status: 2 for arguments that no command takes, with a message on standard error.
int RunCommandLine(const std::vector<CommandDescription>& commands, int argc, const char* const* argv);

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_COMMAND_LINE_H_
