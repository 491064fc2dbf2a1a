// Fuzzes configuration files: each is read whole, or refused with a ConfigError and nothing else.

#include "config/bubble_layer_config_file.h"
#include "fuzz/fuzzing.h"

namespace kavrix::fuzz {
namespace {

// Prints all that a file gives, or the error that refuses it.
std::string Load(std::string_view text) {
  const auto heap_text = std::make_unique<const std::string>(text);
  try {
    const BubbleLayerConfigFile file = ParseBubbleLayerConfig(*heap_text);
    std::string all = file.context_name + ' ' + std::to_string(file.multi_light_type);
    const auto add = [&](const char*, const auto& record) {
      all += '\n' + record.name;
      for (const std::uint32_t word : record.values) all += ' ' + std::to_string(word);
    };
    ForEachStyleRecord(file.bubble_layer, add);
    add("marker_bubble", file.marker_bubble);
    return all;
  } catch (const ConfigError& error) {
    return std::string("refused: ") + error.what();
  }
}

}  // namespace
}  // namespace kavrix::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kavrix::fuzz;
  const std::string_view text = AsText(data, size);
  Require(Load(text) == Load(text), "a file read twice gives the same");
  return 0;
}
