#include "tools/completion_command.h"

#include <fmt/format.h>

#include <memory>

#include "tools/streams.h"

// Writes a completion script: one function, which needs nothing but bash 4.
namespace kavrix::tools {
namespace {

// Parts of the script. Options are offered after a dash, and where nothing else can be.
constexpr char kBegin[] = R"(# bash completion of kavrix-resource
_kavrix_resource()
{
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
  local words='' files='' options=''
  # Bash takes --format=json for three words.
  if [[ $current == '=' && $previous == --* ]]; then
    current=
  elif [[ $previous == '=' && ${COMP_WORDS[COMP_CWORD - 2]} == --* ]]; then
    previous=${COMP_WORDS[COMP_CWORD - 2]}
  fi
  local command=
  ((COMP_CWORD == 1)) || command=${COMP_WORDS[1]}
  case $command in
)";

constexpr char kEnd[] = R"(  esac
  if [[ $current == -* || -z $words$files ]]; then
    words=$options files=
  fi
  COMPREPLY=()
  if [[ -n $files || $previous == [\<\>]* ]]; then
    compopt -o default 2>/dev/null || true # files, as bash completes them; it is refused outside of readline
  elif [[ $current != '=' && $previous != '=' ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
  fi
}
complete -F _kavrix_resource kavrix-resource
)";

// Says what completes a value: files, words or nothing.
std::string ValueOf(const OptionHelp& option) {
  if (option.value == "FILE") return "files=yes";
  return option.words.empty() ? "" : fmt::format("words='{}'", fmt::join(option.words, " "));
}

std::string OptionsOf(const CommandHelp& command) {
  Words names;
  for (const OptionHelp& option : command.options) names.push_back(option.name);
  return fmt::format("options='{}'", fmt::join(names, " "));
}

// The branch of one command.
std::string BranchOf(const CommandHelp& command) {
  std::string branch = "    " + command.name + ")\n      case $previous in\n";
  for (const OptionHelp& option : command.options) {
    if (!option.value.empty()) branch += fmt::format("        {}) {} ;;\n", option.name, ValueOf(option));
  }
  const std::string arguments = command.arguments ? ValueOf(*command.arguments) : "";
  branch += fmt::format("        *) {} {} ;;\n", OptionsOf(command), arguments);
  return branch + "      esac\n      ;;\n";
}

std::string BashCompletion(const Commands& commands) {
  std::string branches =
      fmt::format("    '') words='{}' {} ;;\n", fmt::join(NamesOf(commands), " "), OptionsOf(DescribeTool()));
  for (const CommandHelp& command : DescribeCommands(commands)) branches += BranchOf(command);
  return kBegin + branches + kEnd;
}

int Run(const std::vector<std::string>& shells, const Commands& commands) {
  if (shells != std::vector<std::string>{"bash"}) throw UsageError("expected the name of a shell: bash");
  Output output(false);
  output.Write(BashCompletion(commands));
  output.Flush();
  return 0;
}

}  // namespace

CommandDescription CompletionCommand(Commands (*all)()) {
  const auto list_options = [all](Command& command) -> std::function<int()> {
    const auto shells = std::make_shared<std::vector<std::string>>();
    command.Arguments("SHELL", *shells, "The shell that the script is for: bash", {"bash"});
    command.Details("Prints a script that completes commands, options, their values and files.");
    command.ExitStatus("0 success; 2 usage or output error, such as an unknown shell.");
    command.Example("eval \"$(kavrix-resource completion bash)\"");
    return [shells, all] { return Run(*shells, all()); };
  };
  return {"completion", "Print a script that completes the command line in a shell", list_options};
}

}  // namespace kavrix::tools
