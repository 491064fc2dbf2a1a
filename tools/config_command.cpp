#include "tools/config_command.h"

#include <memory>
#include <optional>
#include <string>

#include "config/bubble_layer_config_file.h"
#include "tools/error_line.h"
#include "tools/samples.h"
#include "tools/streams.h"

namespace kavrix::tools {
namespace {

struct ConfigOptions {
  bool prints_default = false;
  std::optional<std::string> checked_path;
};

int PrintDefault() {
  Output output(false);
  output.Write(kDefaultConfig);
  output.Flush();
  return 0;
}

int Check(const std::string& path) {
  const bool is_input = path == "-";
  const std::string text = is_input ? ReadStandardInput() : ReadFile(path);
  try {
    ParseBubbleLayerConfig(text);
    return 0;
  } catch (const ConfigError& error) {
    WriteErrorLine((is_input ? "standard input" : path) + ": " + error.what());
    return 1;
  }
}

int Run(const ConfigOptions& options) {
  if (options.prints_default == options.checked_path.has_value()) {
    throw UsageError("expected either --default or --check FILE");
  }
  return options.prints_default ? PrintDefault() : Check(*options.checked_path);
}

}  // namespace

CommandDescription ConfigCommand() {
  const auto list_options = [](Command& command) -> std::function<int()> {
    const auto options = std::make_shared<ConfigOptions>();
    command.Flag("--default", options->prints_default, "Print the built-in configuration");
    command.Text("--check FILE", options->checked_path,
                 "Configuration file to check, \"-\" for standard input; silent when it can be used");
    command.Details("\"kavrix-resource schema config\" describes the file.");
    command.ExitStatus("0 success; 1 the configuration is wrong; 2 usage, input or output error.");
    command.Example("kavrix-resource config --default > my.json");
    command.Example("kavrix-resource config --check my.json");
    return [options] { return Run(*options); };
  };
  return {"config", "Print the built-in configuration, or check a configuration file", list_options};
}

}  // namespace kavrix::tools
