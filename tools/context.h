#ifndef KAVRIX_TOOLS_CONTEXT_H_
#define KAVRIX_TOOLS_CONTEXT_H_

#include <optional>
#include <string>

#include "inspect/transform_setup.h"

namespace kavrix::tools {

// Sets the prefix of the process, if one is given; it must outlive all that use it.
void SetPrefix(const std::optional<std::string>& prefix);

// Loads the configuration that is compiled in.
inspect::TransformSetup LoadDefaultConfig(const std::optional<std::string>& context_name = {});

// Loads the configuration of a file. Throws StreamError, or ConfigError with the file's path in front.
inspect::TransformSetup LoadConfig(const std::string& config_path,
                                   const std::optional<std::string>& context_name);

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_CONTEXT_H_
