#include "tools/command_line.h"

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

int ReportUsageError(const std::exception& error, const std::string& hint = "") {
  WriteErrorLine(error.what() + hint);
  std::cerr << "Run with --help for more information.\n";
  return kUsageTrouble;
}

// Returns the command that the first argument calls; null when it is an option. Throws UsageError for a
// command that there is not.
const CLI::App* CalledCommand(const CLI::App& app, int argc, const char* const* argv) {
  if (argc < 2 || argv[1][0] == '-') return nullptr;
  std::vector<std::string> names;
  for (const CLI::App* const command : app.get_subcommands([](const CLI::App*) { return true; })) {
    if (command->get_name() == argv[1]) return command;
    names.push_back(command->get_name());
  }
  throw UsageError(std::string("no command is called \"") + Excerpt(argv[1]) + "\"" +
                   DidYouMean(argv[1], names));
}

// Names the option that an argument was probably meant to be.
std::string HintFor(const CLI::App& command, int argc, const char* const* argv) {
  std::vector<std::string> options;
  for (const CLI::Option* const option : command.get_options()) {
    for (const std::string& name : option->get_lnames()) options.push_back("--" + name);
  }
  for (int i = 2; i < argc; ++i) {
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

void Command::Arguments(const std::string& name, std::vector<std::string>& values, const std::string& help) {
  app_.add_option(name, values, help);
}

void Command::Text(const std::string& option, std::optional<std::string>& value, const std::string& help) {
  app_.add_option(option, value, help);
}

void Command::Texts(const std::string& option, std::vector<std::string>& values, const std::string& help) {
  app_.add_option(option, values, help)->expected(1)->take_all();
}

void Command::Integer(const std::string& option, int& value, int least, int most, const std::string& help) {
  app_.add_option(option, value, help)->check(CLI::Range(least, most));
}

void Command::Choice(const std::string& option, std::string& value, const std::vector<std::string>& choices,
                     const std::string& help) {
  app_.add_option(option, value, help)->check(CLI::IsMember(choices));
}

void Command::Flag(const std::string& option, bool& value, const std::string& help) {
  app_.add_flag(option, value, help);
}

void Command::Footer(const std::string& text) { app_.footer(text); }

int RunCommandLine(const std::vector<CommandDescription>& commands, int argc, const char* const* argv) {
  CLI::App app("Decodes, explains and builds the resource names of map bubbles.", "kavrix-resource");
  app.set_version_flag("--version", "kavrix-resource " KAVRIX_VERSION);
  app.require_subcommand(1);
  std::function<int()> called;
  for (const CommandDescription& description : commands) {
    CLI::App* const subcommand = app.add_subcommand(description.name, description.help);
    Command command(*subcommand);
    const std::function<int()> run = description.options(command);
    subcommand->callback([&called, run] { called = run; });
    UnmarkNames(*subcommand);
  }
  const CLI::App* command = nullptr;
  try {
    command = CalledCommand(app, argc, argv);
    app.parse(MarkNames(argc, argv));
    return called();
  } catch (const CLI::ParseError& error) {
    return Report(app, error, command == nullptr ? "" : HintFor(*command, argc, argv));
  } catch (const UsageError& error) {
    return ReportUsageError(error);
  }
}

}  // namespace kavrix::tools
