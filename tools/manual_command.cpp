#include "tools/manual_command.h"

#include <memory>

#include "tools/manual.h"
#include "tools/streams.h"

namespace kavrix::tools {
namespace {

std::string ManualCalled(const std::string& name, const Commands& commands) {
  for (const CommandHelp& command : DescribeCommands(commands)) {
    if (command.name == name) return ManualOf(command);
  }
  throw UnknownCommand(name, NamesOf(commands));
}

int Run(const std::vector<std::string>& names, const Commands& commands) {
  Output output(false);
  output.Write(names.empty() ? ManualOfTool(DescribeTool(), DescribeCommands(commands))
                             : ManualCalled(names[0], commands));
  output.Flush();
  return 0;
}

}  // namespace

CommandDescription ManualCommand(Commands (*all)()) {
  const auto list_options = [all](Command& command) -> std::function<int()> {
    const auto names = std::make_shared<std::vector<std::string>>();
    command.Arguments("[COMMAND]", *names, "The command that the page is of; without it, the tool itself",
                      NamesOf(all()));
    command.Details("Prints the page as roff, which man displays.");
    command.ExitStatus("0 success; 2 usage or output error, such as an unknown command.");
    command.Example("kavrix-resource manual decode | man -l -");
    return [names, all] { return Run(*names, all()); };
  };
  return {"manual", "Print the manual page of the tool or of a command", list_options};
}

}  // namespace kavrix::tools
