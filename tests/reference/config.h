#ifndef KAVRIX_TESTS_REFERENCE_CONFIG_H_
#define KAVRIX_TESTS_REFERENCE_CONFIG_H_

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

// Configuration files, read by a table and a list of what may stand where. Judges the library's loader and
// shares nothing with it, not even the JSON library.
namespace kavrix::reference {

struct StyleRecord {
  std::string name;
  std::vector<std::uint32_t> cells;  // the bits of values 1 to N

  friend bool operator==(const StyleRecord& a, const StyleRecord& b) {
    return a.name == b.name && a.cells == b.cells;
  }
};

struct Config {
  std::string context_name;
  std::int64_t multi_light_type = 0;
  std::map<std::string, StyleRecord> records;  // all of them by member name, "marker_bubble" included

  friend bool operator==(const Config& a, const Config& b) {
    return a.context_name == b.context_name && a.multi_light_type == b.multi_light_type &&
           a.records == b.records;
  }
};

// Returns nullopt for a text that is no configuration.
std::optional<Config> ReadConfig(const std::string& text);

}  // namespace kavrix::reference

#endif  // KAVRIX_TESTS_REFERENCE_CONFIG_H_
