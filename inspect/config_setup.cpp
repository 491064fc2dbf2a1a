#include "inspect/config_setup.h"

#include <utility>

namespace kavrix::inspect {

TransformSetup SetupFrom(BubbleLayerConfigFile file, const std::optional<std::string>& context_name) {
  auto context = std::make_shared<KavrixContext>(context_name.value_or(file.context_name));
  context->multi_light_type = file.multi_light_type;
  context->SetBubbleLayerConfig(std::move(file.bubble_layer));
  return {context, std::move(file.marker_bubble)};
}

}  // namespace kavrix::inspect
