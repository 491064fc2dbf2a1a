#ifndef KAVRIX_INSPECT_CONFIG_SETUP_H_
#define KAVRIX_INSPECT_CONFIG_SETUP_H_

#include <optional>
#include <string>

#include "config/bubble_layer_config_file.h"
#include "inspect/transform_setup.h"

namespace kavrix::inspect {

// What a configuration file gives a transform. `context_name` takes the place of the file's own.
TransformSetup SetupFrom(BubbleLayerConfigFile file, const std::optional<std::string>& context_name = {});

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_CONFIG_SETUP_H_
