#include "tools/context.h"

#include <utility>

#include "config/bubble_layer_config_file.h"
#include "map_resource/map_resource_manager.h"
#include "tools/samples.h"
#include "tools/streams.h"

namespace kavrix::tools {
namespace {

inspect::TransformSetup FromFile(BubbleLayerConfigFile file, const std::optional<std::string>& context_name) {
  auto context = std::make_shared<KavrixContext>(context_name.value_or(file.context_name));
  context->multi_light_type = file.multi_light_type;
  context->SetBubbleLayerConfig(std::move(file.bubble_layer));
  return {context, std::move(file.marker_bubble)};
}

}  // namespace

void SetPrefix(const std::optional<std::string>& prefix) {
  if (prefix) MapResourceManager::kavrix_resource_prefix = prefix->c_str();
}

inspect::TransformSetup LoadDefaultConfig(const std::optional<std::string>& context_name) {
  return FromFile(ParseBubbleLayerConfig(kDefaultConfig), context_name);
}

inspect::TransformSetup LoadConfig(const std::string& config_path,
                                   const std::optional<std::string>& context_name) {
  const std::string text = ReadFile(config_path);
  try {
    return FromFile(ParseBubbleLayerConfig(text), context_name);
  } catch (const ConfigError& error) {
    throw ConfigError(config_path + ": " + error.what());
  }
}

}  // namespace kavrix::tools
