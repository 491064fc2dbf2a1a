#include "tools/name_options.h"

#include "tools/context.h"

namespace kavrix::tools {

bool NameOptions::IsAnyGivenBesidesNames() const {
  return prefix || marker || bulk.input || bulk.null_delimited || bulk.jobs != 1;
}

inspect::TransformSetup NameOptions::Apply() const {
  SetPrefix(prefix);
  return config_path ? LoadConfig(*config_path, context_name) : LoadDefaultConfig(context_name);
}

namespace {

constexpr char kNames[] = "names from, one a line";

void AddNames(Command& command, NameOptions& options, const std::string& usage, const std::string& help) {
  command.Arguments(usage, options.bulk.names, help);
  command.Text("--prefix TEXT", options.prefix, "Prefix of the names instead of kavrix://resource/");
  command.Flag("--marker", options.marker, "The names are marker names, not bubble names");
}

void AddInput(Command& command, NameOptions& options, const std::string& what) {
  AddInputOption(command, options.bulk, what);
  command.Flag("--null", options.bulk.null_delimited, "Names in the input end in NUL, not newline");
}

void AddConfig(Command& command, NameOptions& options) {
  command.Text("--config FILE", options.config_path, "Configuration file instead of the built-in one");
}

}  // namespace

void AddContextName(Command& command, NameOptions& options) {
  command.Text("--context-name TEXT", options.context_name, "Context name in the log records");
}

void AddNameOptions(Command& command, NameOptions& options) {
  AddNameOptionsBesidesConfig(command, options,
                              "Resource names; without any, read one a line from standard input");
  AddConfig(command, options);
}

void AddNameOptionsBesidesConfig(Command& command, NameOptions& options, const std::string& help) {
  AddNames(command, options, "[NAME]...", help);
  AddBulkOptions(command, options.bulk);
  AddInput(command, options, kNames);
}

void AddDrawnNameOptions(Command& command, NameOptions& options, const std::string& usage,
                         const std::string& help) {
  AddNames(command, options, usage, help);
  AddInput(command, options, usage == "[NAME]" ? "the name from" : kNames);
  AddConfig(command, options);
}

}  // namespace kavrix::tools
