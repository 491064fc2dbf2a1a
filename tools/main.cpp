#include <CLI/CLI.hpp>
#include <algorithm>
#include <csignal>
#include <exception>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "tools/decode_command.h"
#include "tools/encode_command.h"
#include "tools/error_line.h"
#include "tools/icons_command.h"
#include "tools/kinds_command.h"
#include "tools/streams.h"

namespace {

constexpr int kTrouble = 2;

// Help and version go to standard output and are a success; anything else is a usage error.
int Report(const CLI::App& app, const CLI::ParseError& error) {
  if (error.get_exit_code() != 0) {
    kavrix::tools::WriteErrorLine(error.what());
    std::cerr << "Run with --help for more information.\n";
    return kTrouble;
  }
  std::ostringstream text;
  app.exit(error, text, std::cerr);
  kavrix::tools::Output output(false);
  output.Write(text.str());
  output.Flush();
  return 0;
}

// CLI11 takes an argument such as "[a,b]" apart as a list and knows "--" in front of the first name alone.
// Here such arguments are names like any other: they go through it with a NUL in front, which no argument can
// hold by itself, and every option takes it off again.
std::vector<std::string> MarkNames(int argc, char** argv) {
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

void UnmarkNames(CLI::App& app) {
  for (CLI::App* const command : app.get_subcommands({})) {
    for (CLI::Option* const option : command->get_options()) {
      option->transform([](const std::string& text) { return text.substr(text.rfind('\0', 0) == 0 ? 1 : 0); },
                        "");
    }
  }
}

int Run(int argc, char** argv) {
  CLI::App app("Decodes, explains and builds the resource names of map bubbles.", "kavrix-resource");
  app.set_version_flag("--version", "kavrix-resource " KAVRIX_VERSION);
  app.require_subcommand(1);
  int status = 0;
  kavrix::tools::AddDecodeCommand(app, status);
  kavrix::tools::AddEncodeCommand(app, status);
  kavrix::tools::AddKindsCommand(app, status);
  kavrix::tools::AddIconsCommand(app, status);
  UnmarkNames(app);
  try {
    app.parse(MarkNames(argc, argv));
  } catch (const CLI::ParseError& error) {
    return Report(app, error);
  }
  return status;
}

}  // namespace

int main(int argc, char** argv) {
  (void)std::signal(SIGPIPE, SIG_IGN);  // a closed pipe is then an error of the write
  try {
    return Run(argc, argv);
  } catch (const std::exception& error) {
    kavrix::tools::WriteErrorLine(error.what());
    return kTrouble;
  }
}
