#ifndef KAVRIX_TOOLS_CONTEXT_H_
#define KAVRIX_TOOLS_CONTEXT_H_

#include <memory>
#include <optional>
#include <string>

#include "context/kavrix_context.h"

namespace kavrix::tools {

// A context with the configuration that is compiled in.
std::shared_ptr<KavrixContext> MakeDefaultContext(const std::optional<std::string>& context_name = {});

// A context with the configuration of a file. Throws StreamError, or ConfigError with the file's path in
// front.
std::shared_ptr<KavrixContext> MakeContext(const std::string& config_path,
                                           const std::optional<std::string>& context_name);

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_CONTEXT_H_
