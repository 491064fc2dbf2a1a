#include "tools/command_line.h"

#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <sstream>

#include "tools/error_line.h"
#include "tools/streams.h"
#include "tools/suggestion.h"
#include "util/utf8.h"

namespace kavrix::tools {
namespace {

constexpr int kUsageTrouble = 2;

const OptionHelp kHelpOption = {"--help", "", "", "Print this help and exit", {}};
const OptionHelp kVersionOption = {"--version", "", "", "Print the version and exit", {}};

// Takes an option such as "--config FILE" apart.
const OptionHelp& AddOption(CommandHelp& command, const std::string& option, const std::string& help,
                            const Words& words = {}) {
  const std::size_t end = std::min(option.find(' '), option.size());
  const std::string value = option.substr(std::min(end + 1, option.size()));
  return command.options.emplace_back(OptionHelp{option.substr(0, end), value, "", help, words});
}

std::string FooterOf(const CommandHelp& command) {
  std::string footer = command.details.empty() ? "" : command.details + '\n';
  footer += "Exit status: " + command.exit_status;
  for (const std::string& example : command.examples) footer += "\nExample: " + example;
  return footer;
}

int ReportUsageError(const std::exception& error, const std::string& hint = "") {
  WriteErrorLine(error.what() + hint);
  std::cerr << "Run with --help for more information.\n";
  return kUsageTrouble;
}

// Returns the command that the first argument calls; null when it is an option. Throws UsageError for a
// command that there is not.
const CLI::App* CalledCommand(const CLI::App& app, const Commands& commands, int argc,
                              const char* const* argv) {
  if (argc < 2 || argv[1][0] == '-') return nullptr;
  for (const CLI::App* const command : app.get_subcommands([](const CLI::App*) { return true; })) {
    if (command->get_name() == argv[1]) return command;
  }
  throw UnknownCommand(argv[1], NamesOf(commands));
}

// Names the option that an argument, from the `first` on, was probably meant to be.
std::string HintFor(const CLI::App& command, int argc, const char* const* argv, int first) {
  std::vector<std::string> options;
  for (const CLI::Option* const option : command.get_options()) {
    for (const std::string& name : option->get_lnames()) options.push_back("--" + name);
  }
  for (int i = first; i < argc; ++i) {
    const std::string_view argument(argv[i]);
    const std::string option(argument.substr(0, argument.find('=')));
    const bool is_known = std::find(options.begin(), options.end(), option) != options.end();
    if (option.compare(0, 2, "--") == 0 && !is_known) return DidYouMean(option, options);
  }
  return "";
}

// Help and version are a success; anything else is a usage error.
int Report(const CLI::App& app, const CLI::ParseError& error, const std::string& hint) {
  if (error.get_exit_code() != 0) return ReportUsageError(error, hint);
  std::ostringstream text;
  app.exit(error, text, std::cerr);
  Output output(false);
  output.Write(text.str());
  output.Flush();
  return 0;
}

// CLI11 takes an argument such as "[a,b]" apart as a list and knows "--" only before the first name. Here
// such arguments are names like any other: they go through it with a NUL in front, which no argument can hold
// by itself, and every option takes it off again.
std::vector<std::string> MarkNames(int argc, const char* const* argv) {
  std::vector<std::string> arguments;
  bool only_names = false;
  for (int i = 1; i < argc; ++i) {
    const std::string argument = argv[i];
    if (!only_names && argument == "--") {
      only_names = true;
      continue;
    }
    const bool is_list = argument.size() > 1 && argument.front() == '[' && argument.back() == ']';
    arguments.push_back((only_names || is_list ? std::string(1, '\0') : "") + argument);
  }
  std::reverse(arguments.begin(), arguments.end());  // as CLI11 wants them
  return arguments;
}

void UnmarkNames(CLI::App& command) {
  for (CLI::Option* const option : command.get_options()) {
    option->transform([](const std::string& text) { return text.substr(text.rfind('\0', 0) == 0 ? 1 : 0); },
                      "");
  }
}

}  // namespace

void Command::Arguments(const std::string& usage, std::vector<std::string>& values, const std::string& help,
                        const Words& words) {
  std::string value;
  std::copy_if(usage.begin(), usage.end(), std::back_inserter(value),
               [](char c) { return c != '[' && c != ']' && c != '.'; });
  CLI::Option* const option = app_.add_option(value, values, help)->type_name("");
  if (usage.back() != '.') option->expected(0, 1);
  help_.arguments = OptionHelp{"", value, usage, help, words};
}

void Command::Text(const std::string& option, std::optional<std::string>& value, const std::string& help,
                   const Words& words) {
  const OptionHelp& added = AddOption(help_, option, help, words);
  app_.add_option(added.name, value, help)->type_name(added.value);
}

void Command::Texts(const std::string& option, std::vector<std::string>& values, const std::string& help) {
  const OptionHelp& added = AddOption(help_, option, help);
  app_.add_option(added.name, values, help)->type_name(added.value)->expected(1)->take_all();
}

void Command::Integer(const std::string& option, int& value, int least, int most, const std::string& help) {
  const std::string range =
      ", " + std::to_string(least) + " to " + std::to_string(most) + "; by default " + std::to_string(value);
  const OptionHelp& added = AddOption(help_, option, help + range);
  app_.add_option(added.name, value, added.help)
      ->type_name(added.value)
      ->check(CLI::Range(least, most).description(""));
}

void Command::Choice(const std::string& option, std::string& value, const Words& choices,
                     const std::string& help) {
  const OptionHelp& added =
      AddOption(help_, fmt::format("{} {}", option, fmt::join(choices, "|")), help, choices);
  app_.add_option(added.name, value, help)
      ->type_name(added.value)
      ->check(CLI::IsMember(choices).description(""));
}

void Command::Flag(const std::string& option, bool& value, const std::string& help) {
  AddOption(help_, option, help);
  app_.add_flag(option, value, help);
}

void Command::Details(const std::string& text) { help_.details = text; }

void Command::ExitStatus(const std::string& text) { help_.exit_status = text; }

void Command::Example(const std::string& shell_command) { help_.examples.push_back(shell_command); }

UsageError UnknownCommand(const std::string& name, const Words& commands) {
  return UsageError("no command is called \"" + Excerpt(name) + '"' + DidYouMean(name, commands));
}

Words NamesOf(const Commands& commands) {
  Words names;
  for (const CommandDescription& command : commands) names.emplace_back(command.name);
  return names;
}

CommandHelp DescribeTool() {
  CommandHelp tool;
  tool.help = "Decode, explain and build the resource names of map bubbles";
  tool.options = {kHelpOption, kVersionOption};
  tool.details =
      "A map engine asks its client for the picture of a bubble by one string, the resource name.\n"
      "Data goes to standard output, everything else to standard error. Colour is used only on a\n"
      "terminal, and not when the environment variable NO_COLOR is set.";
  tool.exit_status =
      "0 success; 1 a name, bubble or query failed, or check, compare or config --check found something;\n"
      "2 usage, input or output error; 141 the reader of the output went away.";
  return tool;
}

std::vector<CommandHelp> DescribeCommands(const Commands& commands) {
  std::vector<CommandHelp> described;
  for (const CommandDescription& description : commands) {
    CLI::App app;
    CommandHelp& help = described.emplace_back();
    help.name = description.name;
    help.help = description.help;
    help.options.push_back(kHelpOption);
    Command command(app, help);
    description.options(command);
  }
  return described;
}

int RunCommandLine(const Commands& commands, int argc, const char* const* argv) {
  const CommandHelp tool = DescribeTool();
  CLI::App app(tool.help, "kavrix-resource");
  app.footer(FooterOf(tool));
  app.set_help_flag("-h," + kHelpOption.name, kHelpOption.help);
  app.set_version_flag(kVersionOption.name, "kavrix-resource " KAVRIX_VERSION, kVersionOption.help);
  app.require_subcommand(1);
  std::function<int()> called;
  for (const CommandDescription& description : commands) {
    CLI::App* const subcommand = app.add_subcommand(description.name, description.help);
    CommandHelp help;
    Command command(*subcommand, help);
    const std::function<int()> run = description.options(command);
    subcommand->footer(FooterOf(help));
    subcommand->callback([&called, run] { called = run; });
    UnmarkNames(*subcommand);
  }
  const CLI::App* command = nullptr;
  try {
    command = CalledCommand(app, commands, argc, argv);
    app.parse(MarkNames(argc, argv));
    return called();
  } catch (const CLI::ParseError& error) {
    return Report(app, error,
                  command == nullptr ? HintFor(app, argc, argv, 1) : HintFor(*command, argc, argv, 2));
  } catch (const UsageError& error) {
    return ReportUsageError(error);
  }
}

}  // namespace kavrix::tools
