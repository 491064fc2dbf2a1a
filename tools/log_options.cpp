#include "tools/log_options.h"

#include "inspect/json_error.h"
#include "tools/context.h"

namespace kavrix::tools {

std::vector<std::string> LogOptions::Paths() const {
  return files.empty() ? std::vector<std::string>{"-"} : files;
}

void LogOptions::Apply(bool finds_names) const {
  const bool is_sought = finds_names && prefix;
  if (is_sought && prefix->empty()) throw UsageError("--prefix is empty; names are found by it");
  if (is_sought && prefix->find_first_of(inspect::kJsonBlanks) != std::string::npos) {
    throw UsageError("--prefix holds a blank or the end of a line; no name can be found by it");
  }
  SetPrefix(prefix);
}

void AddLogOptions(Command& command, LogOptions& options, const std::string& help,
                   const std::string& json_help) {
  command.Arguments("[FILE]...", options.files, help);
  command.Flag("--json", options.json, json_help);
  command.Text("--prefix TEXT", options.prefix, "Prefix of the names instead of kavrix://resource/");
}

}  // namespace kavrix::tools
