#include "tests/reference/config.h"

#include <algorithm>
#include <cctype>
#include <clocale>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <set>

#include "tests/reference/flat_json.h"

namespace kavrix::reference {
namespace {

struct Layout {
  std::size_t cells;
  std::set<std::size_t> floats;  // their numbers from 1; all other values are words
};

const std::map<std::string, Layout>& Layouts() {
  static const std::map<std::string, Layout> layouts = {
      {"route_name_style", {4, {3}}},
      {"traffic_style", {12, {3, 4, 5, 6, 8, 9, 10}}},
      {"companion_style", {8, {6, 7}}},
      {"camera_style", {18, {}}},
      {"eta_style", {12, {2, 8}}},
      {"eta_scene_style", {12, {2, 8}}},
      {"route_label_style", {4, {4}}},
      {"camera_scene_style", {18, {}}},
      {"traffic_nav_style", {14, {3, 4, 5, 6, 8, 9, 10}}},
      {"route_name_scene_style", {4, {3}}},
      {"turn_style", {2, {}}},
      {"unread_style_12", {18, {}}},
      {"unread_style_13", {2, {}}},
      {"hd_long_solid_style", {4, {3}}},
      {"unread_style_15", {2, {}}},
      {"indoor_entries_style", {4, {3}}},
      {"light_wait_style", {4, {3}}},
      {"unread_style_18", {2, {}}},
      {"unread_style_19", {2, {}}},
      {"unread_style_20", {2, {}}},
      {"traffic_scene_style", {11, {3, 4, 5, 6, 8, 9, 10}}},
      {"marker_bubble", {4, {3}}},
  };
  return layouts;
}

bool IsIntegerFrom(const FlatValue& value, std::int64_t least, std::int64_t most) {
  constexpr std::size_t kMostDigits = 11;  // of what is in range
  if (value.type != JsonType::kInteger || value.text.size() > kMostDigits) return false;
  const std::int64_t number = std::stoll(value.text);
  return number >= least && number <= most;
}

// "0x" and hexadecimal digits, of which at most eight count.
std::optional<std::uint32_t> HexWord(const std::string& text) {
  if (text.size() < 3 || text.compare(0, 2, "0x") != 0) return std::nullopt;
  const bool all_digits = std::all_of(text.begin() + 2, text.end(),
                                      [](char c) { return std::isxdigit(static_cast<unsigned char>(c)); });
  if (!all_digits) return std::nullopt;
  const std::size_t first = std::min(text.find_first_not_of('0', 2), text.size() - 1);
  if (text.size() - first > 8) return std::nullopt;
  return static_cast<std::uint32_t>(std::stoull(text.substr(first), nullptr, 16));
}

std::optional<std::uint32_t> Word(const FlatValue& value) {
  if (value.type == JsonType::kText) return HexWord(value.text);
  if (!IsIntegerFrom(value, 0, 4294967295)) return std::nullopt;
  return static_cast<std::uint32_t>(std::stoll(value.text));
}

std::optional<std::uint32_t> FloatBits(const FlatValue& value) {
  if (value.type != JsonType::kInteger && value.type != JsonType::kReal) return std::nullopt;
  static const ::locale_t classic = ::newlocale(LC_ALL_MASK, "C", nullptr);
  const float number = ::strtof_l(value.text.c_str(), nullptr, classic);
  if (std::isinf(number)) return std::nullopt;
  std::uint32_t bits = 0;
  std::memcpy(&bits, &number, sizeof bits);
  return bits;
}

// Stores one value; false when it may not stand there.
bool Store(const JsonPath& path, const FlatValue& value, Config& config) {
  const std::string first = path.empty() ? "" : path[0];
  if (path.empty()) return value.type == JsonType::kObject;
  if (path.size() == 1 && first == "bubble_layer") return value.type == JsonType::kObject;
  if (path.size() == 1 && first == "context_name") {
    config.context_name = value.text;
    return value.type == JsonType::kText;
  }
  if (path.size() == 1 && first == "multi_light_type") {
    if (!IsIntegerFrom(value, -2147483648LL, 2147483647)) return false;
    config.multi_light_type = std::stoll(value.text);
    return true;
  }
  // What is left is a record of the layer, or the marker bubble's beside it.
  const bool is_in_layer = first == "bubble_layer";
  const JsonPath rest(path.begin() + (is_in_layer ? 1 : 0), path.end());
  const auto record = config.records.find(rest[0]);
  if (record == config.records.end() || is_in_layer == (rest[0] == "marker_bubble")) return false;
  if (rest.size() == 1) return value.type == JsonType::kObject;
  if (rest.size() == 2 && rest[1] == "name") {
    record->second.name = value.text;
    return value.type == JsonType::kText;
  }
  if (rest[1] != "values") return false;
  if (rest.size() == 2) return value.type == JsonType::kArray;
  const std::size_t place = std::stoul(rest[2]);
  if (rest.size() > 3 || place >= record->second.cells.size()) return false;
  const bool is_float = Layouts().at(rest[0]).floats.count(place + 1) != 0;
  const std::optional<std::uint32_t> cell = is_float ? FloatBits(value) : Word(value);
  if (cell) record->second.cells[place] = *cell;
  return cell.has_value();
}

}  // namespace

std::optional<Config> ReadConfig(const std::string& text) {
  const auto values = ReadFlatJson(text);
  if (!values) return std::nullopt;
  Config config;
  for (const auto& [name, layout] : Layouts()) config.records[name].cells.resize(layout.cells);
  for (const auto& [path, value] : *values) {
    if (!Store(path, value, config)) return std::nullopt;
  }
  return config;
}

}  // namespace kavrix::reference
