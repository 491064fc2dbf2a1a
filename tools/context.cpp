#include "tools/context.h"

#include "config/bubble_layer_config_file.h"
#include "inspect/config_setup.h"
#include "map_resource/map_resource_manager.h"
#include "tools/samples.h"
#include "tools/streams.h"

namespace kavrix::tools {

void SetPrefix(const std::optional<std::string>& prefix) {
  if (prefix) MapResourceManager::kavrix_resource_prefix = prefix->c_str();
}

inspect::TransformSetup LoadDefaultConfig(const std::optional<std::string>& context_name) {
  return inspect::SetupFrom(ParseBubbleLayerConfig(kDefaultConfig), context_name);
}

inspect::TransformSetup LoadConfig(const std::string& config_path,
                                   const std::optional<std::string>& context_name) {
  const std::string text = ReadFile(config_path);
  try {
    return inspect::SetupFrom(ParseBubbleLayerConfig(text), context_name);
  } catch (const ConfigError& error) {
    throw ConfigError(config_path + ": " + error.what());
  }
}

}  // namespace kavrix::tools
