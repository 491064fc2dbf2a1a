#ifndef KAVRIX_CONFIG_BUBBLE_LAYER_CONFIG_FILE_H_
#define KAVRIX_CONFIG_BUBBLE_LAYER_CONFIG_FILE_H_

#include <cstdint>
#include <stdexcept>
#include <string>

#include "config/bubble_layer_config_container.h"
#include "config/marker_bubble_config.h"

namespace kavrix {

// What a configuration file holds. What the file leaves out has an empty name and zeros.
struct BubbleLayerConfigFile {
  std::string context_name;
  std::int32_t multi_light_type = 0;
  BubbleLayerConfigContainer bubble_layer;
  MarkerBubbleConfig marker_bubble;  // for MapResourceTransform::SetMarkerBubbleConfig
};

// Says what of the text could not be used: the record, the value's number, what was expected, what was found.
// What was found is quoted as it is, control characters included, and cut after 60 characters.
class ConfigError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Reads a configuration from the JSON text
//   {"context_name": string, "multi_light_type": integer,
//    "bubble_layer": {record: {"name": string, "values": [value 1, value 2, ...]}, ...},
//    "marker_bubble": {"name": string, "values": [...]}}
// with the records by their member names. Everything may be left out, nothing may be added. The text is
// strict JSON, read alike under every locale. A float value is any number whose nearest float is finite; a
// word is an integer from 0 to 4294967295 or a text such as "0xffff0000". Throws ConfigError for the first
// thing that does not fit; nothing is loaded then.
BubbleLayerConfigFile ParseBubbleLayerConfig(const std::string& json_text);

}  // namespace kavrix

#endif  // KAVRIX_CONFIG_BUBBLE_LAYER_CONFIG_FILE_H_
