#ifndef KAVRIX_TOOLS_LOG_OPTIONS_H_
#define KAVRIX_TOOLS_LOG_OPTIONS_H_

#include <optional>
#include <string>
#include <vector>

#include "tools/bulk.h"
#include "tools/command_line.h"
#include "tools/text_names.h"

namespace kavrix::tools {

// What the commands that read files have in common.
struct LogOptions {
  BulkOptions bulk;
  std::vector<std::string> files;
  std::optional<std::string> prefix;
  bool json = false;

  // The files to read: those that are given, else standard input.
  std::vector<std::string> Paths() const;

  // Sets the prefix of the process. With `finds_names`, throws UsageError for one that cannot be sought in
  // lines.
  void Apply(bool finds_names) const;
};

// `help` is of the files, `json_help` of --json.
void AddLogOptions(Command& command, LogOptions& options, const std::string& help,
                   const std::string& json_help);

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_LOG_OPTIONS_H_
