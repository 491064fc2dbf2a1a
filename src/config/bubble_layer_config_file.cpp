#include "config/bubble_layer_config_file.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <string_view>

#include "util/escape.h"
#include "util/json_number.h"
#include "util/json_value.h"
#include "util/strict_json.h"
#include "util/utf8.h"

namespace kavrix {
namespace {

constexpr const char* kWord = "an integer from 0 to 4294967295 or a string such as \"0xffff0000\"";

[[noreturn]] void FailUnknown(const std::string& where, const std::string& key, const char* expected) {
  std::string quoted_key;
  AppendQuoted(quoted_key, Excerpt(key));
  throw ConfigError(where + ": unknown key " + quoted_key + ", expected " + expected);
}

// The value of a string such as "0xffff0000".
std::optional<std::uint32_t> HexWord(std::string_view text) {
  constexpr std::string_view kHead = "0x";
  if (text.substr(0, kHead.size()) != kHead) return std::nullopt;
  std::uint32_t word = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data() + kHead.size(), end, word, 16);
  if (error != std::errc() || stop != end) return std::nullopt;
  return word;
}

// Reads the parts of a configuration. `where` names the part in messages.
class ConfigReader {
 public:
  // `text` is the source of the values.
  explicit ConfigReader(std::string_view text) : text_(text) {}

  BubbleLayerConfigFile Read(const Json::Value& root) const {
    RequireObject("the configuration", root);
    BubbleLayerConfigFile file;
    for (const std::string& key : root.getMemberNames()) {
      const Json::Value& value = root[key];
      if (key == "context_name") {
        file.context_name = ReadText(key, value);
      } else if (key == "multi_light_type") {
        file.multi_light_type = ReadInt(key, value);
      } else if (key == "bubble_layer") {
        ReadBubbleLayer(value, file.bubble_layer);
      } else if (key == "marker_bubble") {
        ReadRecord(key, value, file.marker_bubble);
      } else {
        FailUnknown("the configuration", key,
                    "\"context_name\", \"multi_light_type\", \"bubble_layer\" or \"marker_bubble\"");
      }
    }
    return file;
  }

 private:
  [[noreturn]] void Fail(const std::string& where, const char* expected, const Json::Value& value) const {
    throw ConfigError(where + ": expected " + expected + ", found " +
                      Excerpt(JsonUtil::SourceOf(value, text_)));
  }

  void RequireObject(const std::string& where, const Json::Value& value) const {
    if (!value.isObject()) Fail(where, "an object", value);
  }

  std::string ReadText(const std::string& where, const Json::Value& value) const {
    const auto text = JsonUtil::AsText(value);
    if (!text) Fail(where, "a string", value);
    return std::string(*text);
  }

  std::int32_t ReadInt(const std::string& where, const Json::Value& value) const {
    const auto number = JsonUtil::AsInt(value);
    if (!number) Fail(where, "a 32-bit integer", value);
    return *number;
  }

  std::uint32_t ReadWord(const std::string& where, const Json::Value& value) const {
    if (const auto text = JsonUtil::AsText(value)) {
      const auto word = HexWord(*text);
      if (!word) Fail(where, kWord, value);
      return *word;
    }
    const auto integer = JsonUtil::AsInteger(value);
    if (!integer || *integer < 0 || *integer > std::numeric_limits<std::uint32_t>::max()) {
      Fail(where, kWord, value);
    }
    return static_cast<std::uint32_t>(*integer);
  }

  // Reads the digits, not the stored double: the float nearest to that double need not be the float nearest
  // to the digits.
  float ReadFloat(const std::string& where, const Json::Value& value) const {
    if (!value.isNumeric()) Fail(where, "a number", value);
    const float number = JsonUtil::NearestFloat(JsonUtil::SourceOf(value, text_));
    if (!std::isfinite(number)) Fail(where, "a number that a float can hold", value);
    return number;
  }

  template <class Record>
  void ReadValues(const std::string& record_name, const Json::Value& values, Record& record) const {
    if (!values.isArray()) Fail(record_name + ".values", "an array", values);
    if (values.size() > Record::kValueCount) {
      throw ConfigError(record_name + " value " + std::to_string(Record::kValueCount + 1) +
                        ": expected at most " + std::to_string(Record::kValueCount) + " values, found " +
                        std::to_string(values.size()));
    }
    std::size_t number = 0;
    for (const Json::Value& value : values) {
      ++number;
      const std::string where = record_name + " value " + std::to_string(number);
      if (IsFloatValue(record_name, number)) {
        record.SetFloat(number, ReadFloat(where, value));
      } else {
        record.SetWord(number, ReadWord(where, value));
      }
    }
  }

  template <class Record>
  void ReadRecord(const std::string& record_name, const Json::Value& json, Record& record) const {
    RequireObject(record_name, json);
    for (const std::string& key : json.getMemberNames()) {
      if (key == "name") {
        record.name = ReadText(record_name + ".name", json[key]);
      } else if (key == "values") {
        ReadValues(record_name, json[key], record);
      } else {
        FailUnknown(record_name, key, "\"name\" or \"values\"");
      }
    }
  }

  void ReadBubbleLayer(const Json::Value& json, BubbleLayerConfigContainer& config) const {
    RequireObject("bubble_layer", json);
    for (const std::string& key : json.getMemberNames()) {
      bool known = false;
      ForEachStyleRecord(config, [&](const char* name, auto& record) {
        if (key != name) return;
        known = true;
        ReadRecord(key, json[key], record);
      });
      if (!known) FailUnknown("bubble_layer", key, "a record such as \"traffic_style\"");
    }
  }

  const std::string_view text_;
};

}  // namespace

BubbleLayerConfigFile ParseBubbleLayerConfig(const std::string& json_text) {
  Json::Value root;
  std::string error;
  if (!JsonUtil::ParseStrictly(json_text, root, error)) throw ConfigError("not valid JSON: " + error);
  return ConfigReader(json_text).Read(root);
}

}  // namespace kavrix
