#ifndef KAVRIX_TOOLS_CONTEXT_H_
#define KAVRIX_TOOLS_CONTEXT_H_

#include <memory>
#include <optional>
#include <string>

#include "config/marker_bubble_config.h"
#include "context/kavrix_context.h"

namespace kavrix::tools {

// What a configuration gives a transform.
struct TransformSetup {
  std::shared_ptr<KavrixContext> context;
  MarkerBubbleConfig marker_bubble;
};

// Loads the configuration that is compiled in.
TransformSetup LoadDefaultConfig(const std::optional<std::string>& context_name = {});

// Loads the configuration of a file. Throws StreamError, or ConfigError with the file's path in front.
TransformSetup LoadConfig(const std::string& config_path, const std::optional<std::string>& context_name);

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_CONTEXT_H_
