#include "tools/log_options.h"

#include "map_resource/map_resource_manager.h"

namespace kavrix::tools {

std::vector<std::string> LogOptions::Paths() const {
  return files.empty() ? std::vector<std::string>{"-"} : files;
}

void LogOptions::Apply() const {
  if (!prefix) return;
  if (prefix->empty()) throw UsageError("--prefix is empty; names are found by it");
  MapResourceManager::kavrix_resource_prefix = prefix->c_str();
}

void AddLogOptions(Command& command, LogOptions& options, const std::string& help,
                   const std::string& json_help) {
  command.Arguments("FILE", options.files, help);
  command.Flag("--json", options.json, json_help);
  command.Text("--prefix", options.prefix, "Prefix of the names instead of kavrix://resource/");
  AddBulkOptions(command, options.bulk);
}

}  // namespace kavrix::tools
