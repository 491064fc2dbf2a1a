#ifndef KAVRIX_CONFIG_BUBBLE_LAYER_CONFIG_FILE_H_
#define KAVRIX_CONFIG_BUBBLE_LAYER_CONFIG_FILE_H_

#include <cstdint>
#include <stdexcept>
#include <string>

#include "../util/export.h"
#include "bubble_layer_config_container.h"
#include "marker_bubble_config.h"

namespace kavrix {

/// The contents of a configuration file. Whatever the file leaves out is empty or 0.
struct BubbleLayerConfigFile {
  std::string context_name;                 ///< For the constructor of KavrixContext.
  std::int32_t multi_light_type = 0;        ///< For KavrixContext::multi_light_type.
  BubbleLayerConfigContainer bubble_layer;  ///< For KavrixContext::SetBubbleLayerConfig.
  MarkerBubbleConfig marker_bubble;         ///< For MapResourceTransform::SetMarkerBubbleConfig.
};

/// The configuration cannot be used. The message says where, what was expected and what was found; the latter
/// is quoted as it is, control characters included, and cut after 60 characters.
class KAVRIX_EXPORT ConfigError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Reads a configuration from the JSON text
///
///     {"context_name": string, "multi_light_type": integer,
///      "bubble_layer": {record: {"name": string, "values": [value 1, value 2, ...]}, ...},
///      "marker_bubble": {"name": string, "values": [...]}}
///
/// where each style record has its member name. Every key is optional, and an unknown key is an error. The
/// text is strict JSON, read alike under every locale. A float value is any number whose nearest float is
/// finite; a word is an integer from 0 to 4294967295 or a string such as "0xffff0000". Throws ConfigError for
/// the first error.
KAVRIX_EXPORT BubbleLayerConfigFile ParseBubbleLayerConfig(const std::string& json_text);

}  // namespace kavrix

#endif  // KAVRIX_CONFIG_BUBBLE_LAYER_CONFIG_FILE_H_
