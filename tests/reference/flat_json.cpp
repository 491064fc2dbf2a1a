#include "tests/reference/flat_json.h"

#include <cstddef>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <utility>

namespace kavrix::reference {
namespace {

// The path of the array or object that is being read, and in an array the place of its next element.
struct Level {
  JsonPath path;
  bool is_array;
  std::size_t next = 0;
};

// Called by nlohmann's parser for each piece of the text; false stops it.
class Flattener : public nlohmann::json_sax<nlohmann::json> {
 public:
  std::map<JsonPath, FlatValue> values;

  bool null() override { return Add(JsonType::kOther); }
  bool boolean(bool) override { return Add(JsonType::kOther); }
  // The parser passes numbers with a sign here and those without one to the next function.
  bool number_integer(std::int64_t number) override {
    return Add(JsonType::kInteger, number == 0 ? "-0" : std::to_string(number));
  }
  bool number_unsigned(std::uint64_t number) override {
    return Add(JsonType::kInteger, std::to_string(number));
  }
  // Integers over 64 bits come here too. The parser writes the locale's decimal point into the digits.
  bool number_float(double, const std::string& digits) override {
    std::string number = digits;
    const std::size_t point = number.find_first_not_of("0123456789+-eE");
    if (point != std::string::npos) number[point] = '.';
    const bool is_integer = number.find_first_of(".eE") == std::string::npos;
    return Add(is_integer ? JsonType::kInteger : JsonType::kReal, number);
  }
  bool string(std::string& text) override { return Add(JsonType::kText, text); }
  bool binary(binary_t&) override { return false; }
  bool key(std::string& key) override {
    key_ = key;
    return true;
  }
  bool start_object(std::size_t) override { return Open(JsonType::kObject); }
  bool start_array(std::size_t) override { return Open(JsonType::kArray); }
  bool end_object() override { return Close(); }
  bool end_array() override { return Close(); }
  bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override {
    return false;
  }

 private:
  JsonPath NextPath() {
    if (levels_.empty()) return {};
    Level& level = levels_.back();
    JsonPath path = level.path;
    path.push_back(level.is_array ? std::to_string(level.next++) : key_);
    return path;
  }

  // False for a path that is there already: its key stands twice.
  bool Add(JsonType type, const std::string& text = "") {
    return values.emplace(NextPath(), FlatValue{type, text}).second;
  }

  bool Open(JsonType type) {
    JsonPath path = NextPath();
    if (!values.emplace(path, FlatValue{type, ""}).second) return false;
    levels_.push_back({std::move(path), type == JsonType::kArray});
    return true;
  }

  bool Close() {
    levels_.pop_back();
    return true;
  }

  std::vector<Level> levels_;
  std::string key_;
};

}  // namespace

std::optional<std::map<JsonPath, FlatValue>> ReadFlatJson(const std::string& text) {
  // The parser takes a NUL for the end, and drops a byte order mark; JSON has neither.
  const bool has_mark = text.compare(0, 3, "\xEF\xBB\xBF") == 0;
  if (has_mark || text.find('\0') != std::string::npos) return std::nullopt;
  Flattener flattener;
  if (!nlohmann::json::sax_parse(text, &flattener)) return std::nullopt;
  return std::move(flattener.values);
}

}  // namespace kavrix::reference
