#ifndef KAVRIX_TOOLS_NAME_OPTIONS_H_
#define KAVRIX_TOOLS_NAME_OPTIONS_H_

#include <optional>
#include <string>

#include "inspect/transform_setup.h"
#include "map_resource/bubble_kinds.h"
#include "tools/bulk.h"
#include "tools/command_line.h"

namespace kavrix::tools {

// What the commands that take names have in common.
struct NameOptions {
  BulkOptions bulk;
  std::optional<std::string> config_path;
  std::optional<std::string> prefix;
  std::optional<std::string> context_name;
  bool marker = false;

  EntryPoint Entry() const { return marker ? EntryPoint::kMarker : EntryPoint::kBubble; }

  // Whether an option says how names are read.
  bool IsAnyGivenBesidesNames() const;

  // Sets the prefix of the process, and loads the configuration. Throws as LoadConfig.
  inspect::TransformSetup Apply() const;
};

void AddNameOptions(Command& command, NameOptions& options);

// All of them but --config. `help` is of the names.
void AddNameOptionsBesidesConfig(Command& command, NameOptions& options, const std::string& help);

// For the commands that show log records.
void AddContextName(Command& command, NameOptions& options);

// Those that change a picture. `usage` says how many names there may be.
void AddDrawnNameOptions(Command& command, NameOptions& options, const std::string& usage,
                         const std::string& help);

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_NAME_OPTIONS_H_
