#include "tests/support/config_agreement.h"

#include <optional>

#include "config/bubble_layer_config_file.h"
#include "tests/reference/config.h"

namespace kavrix::test {
namespace {

reference::Config Plain(const BubbleLayerConfigFile& file) {
  reference::Config config;
  config.context_name = file.context_name;
  config.multi_light_type = file.multi_light_type;
  const auto add = [&](const char* name, const auto& record) {
    config.records[name] = {record.name, {record.values.begin(), record.values.end()}};
  };
  ForEachStyleRecord(file.bubble_layer, add);
  add("marker_bubble", file.marker_bubble);
  return config;
}

// The name of a record that differs.
std::string FirstDifference(const reference::Config& a, const reference::Config& b) {
  for (const auto& [name, record] : a.records) {
    const auto other = b.records.find(name);
    if (other == b.records.end() || !(other->second == record)) return name;
  }
  return "context_name, multi_light_type or the number of records";
}

}  // namespace

std::string DisagreementOnConfig(const std::string& text) {
  const std::optional<reference::Config> expected = reference::ReadConfig(text);
  try {
    const reference::Config actual = Plain(ParseBubbleLayerConfig(text));
    if (!expected) return "taken, but the reference refuses it";
    return actual == *expected ? "" : "different: " + FirstDifference(actual, *expected);
  } catch (const ConfigError& error) {
    return expected ? std::string("refused, but the reference takes it: ") + error.what() : "";
  }
}

}  // namespace kavrix::test
