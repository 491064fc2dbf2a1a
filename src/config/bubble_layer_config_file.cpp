#include "config/bubble_layer_config_file.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "util/json_util.h"
#include "util/utf8.h"

namespace kavrix {
namespace {

std::string Found(const Json::Value& value) {
  std::string text = JsonUtil::ToText(value);
  constexpr std::size_t kLongest = 60;
  if (text.size() > kLongest) text = ToValidUtf8(text.substr(0, kLongest)) + "...";
  return text;
}

[[noreturn]] void Fail(const std::string& where, const std::string& expected, const Json::Value& found) {
  throw ConfigError(where + ": expected " + expected + ", found " + Found(found));
}

[[noreturn]] void FailUnknown(const std::string& where, const std::string& key, const std::string& expected) {
  throw ConfigError(where + ": unknown key \"" + key + "\", expected " + expected);
}

void RequireObject(const std::string& where, const Json::Value& value) {
  if (!value.isObject()) Fail(where, "an object", value);
}

std::string ReadText(const std::string& where, const Json::Value& value) {
  const auto text = JsonUtil::AsText(value);
  if (!text) Fail(where, "a text", value);
  return std::string(*text);
}

std::uint32_t ReadWord(const std::string& where, const Json::Value& value) {
  constexpr const char* kExpected = "an integer from 0 to 4294967295 or a text such as \"0xffff0000\"";
  if (const auto text = JsonUtil::AsText(value)) {
    std::uint32_t word = 0;
    const char* const end = text->data() + text->size();
    if (text->substr(0, 2) != "0x") Fail(where, kExpected, value);
    const auto [stop, error] = std::from_chars(text->data() + 2, end, word, 16);
    if (error != std::errc() || stop != end) Fail(where, kExpected, value);
    return word;
  }
  const auto integer = JsonUtil::AsInteger(value);
  if (!integer || *integer < 0 || *integer > std::numeric_limits<std::uint32_t>::max()) {
    Fail(where, kExpected, value);
  }
  return static_cast<std::uint32_t>(*integer);
}

float ReadFloat(const std::string& where, const Json::Value& value) {
  const auto number = JsonUtil::AsDouble(value);
  if (!number) Fail(where, "a number", value);
  if (std::abs(*number) > static_cast<double>(std::numeric_limits<float>::max())) {
    Fail(where, "a number that a float can hold", value);
  }
  return static_cast<float>(*number);
}

template <class Record>
void ReadValues(const std::string& record_name, const Json::Value& values, Record& record) {
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
void ReadRecord(const std::string& record_name, const Json::Value& json, Record& record) {
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

void ReadBubbleLayer(const Json::Value& json, BubbleLayerConfigContainer& config) {
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

std::int32_t ReadInt(const std::string& where, const Json::Value& value) {
  const auto number = JsonUtil::AsInt(value);
  if (!number) Fail(where, "a 32-bit integer", value);
  return *number;
}

}  // namespace

BubbleLayerConfigFile ParseBubbleLayerConfig(const std::string& json_text) {
  Json::Value root;
  std::string error;
  if (!JsonUtil::ParseStrictly(json_text, root, error)) throw ConfigError("not valid JSON: " + error);
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

}  // namespace kavrix
