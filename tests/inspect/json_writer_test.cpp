#include "inspect/json_writer.h"

#include <gtest/gtest.h>

#include <limits>
#include <nlohmann/json.hpp>
#include <random>

#include "util/utf8.h"

namespace kavrix::inspect {
namespace {

std::string LineOf(std::string_view text) {
  JsonWriter json;
  json.Text(text);
  return json.TakeLine();
}

// What another reader makes of the text that was written.
std::string ReadBack(std::string_view text) { return nlohmann::json::parse(LineOf(text)); }

TEST(JsonWriterTest, EveryByteAtEveryPlaceReadsBack) {
  for (int byte = 0; byte < 256; ++byte) {
    for (std::size_t place = 0; place < 18; ++place) {
      std::string text = "plain text of 17 b";
      text[place] = static_cast<char>(byte);
      EXPECT_EQ(ReadBack(text), ToValidUtf8(text)) << byte << " at " << place;
    }
  }
}

TEST(JsonWriterTest, TextsOfAnyBytesReadBackWithReplacements) {
  std::mt19937 random(1);
  for (int i = 0; i < 5000; ++i) {
    std::string text;
    for (std::size_t pieces = random() % 12; pieces > 0; --pieces) {
      constexpr std::string_view kPieces[] = {"8 bytes.", "\"",   "\\",       "\n", "前",
                                              "😀",        "\xC3", "\xF0\x9F", "a"};
      text += kPieces[random() % std::size(kPieces)];
    }
    EXPECT_EQ(ReadBack(text), ToValidUtf8(text));
  }
}

TEST(JsonWriterTest, EscapesAreTheShortOnes) {
  EXPECT_EQ(LineOf("\"\\/\b\f\n\r\t\x01\x1F\x7F"), "\"\\\"\\\\/\\b\\f\\n\\r\\t\\u0001\\u001F\x7F\"\n");
}

TEST(JsonWriterTest, LinesLongerThanTheFirstBufferAreWhole) {
  for (const std::size_t size : {2000U, 2045U, 2046U, 2047U, 2048U, 2049U, 100000U}) {
    EXPECT_EQ(LineOf(std::string(size, 'x')), '"' + std::string(size, 'x') + "\"\n");
    EXPECT_EQ(LineOf(std::string(size, '\x01')).size(), 6 * size + 3);
  }
}

TEST(JsonWriterTest, CommasStandBetweenValues) {
  JsonWriter json;
  json.BeginObject();
  json.Key("a");
  json.BeginArray();
  json.Integer(std::numeric_limits<std::int64_t>::min());
  json.Null();
  json.BeginObject();
  json.EndObject();
  json.Flag(true);
  json.EndArray();
  json.Key("b");
  json.Flag(false);
  json.Key("c");
  json.Text("");
  json.EndObject();
  EXPECT_EQ(json.TakeLine(), "{\"a\":[-9223372036854775808,null,{},true],\"b\":false,\"c\":\"\"}\n");
}

TEST(JsonWriterTest, RealsAreShortestAndReadBackToTheSameFloat) {
  const auto line_of = [](float value) {
    JsonWriter json;
    json.Real(value);
    return json.TakeLine();
  };
  EXPECT_EQ(line_of(1.5F), "1.5\n");
  EXPECT_EQ(line_of(14), "14\n");
  EXPECT_EQ(line_of(-0.0F), "-0.0\n");
  EXPECT_EQ(line_of(std::numeric_limits<float>::infinity()), "null\n");
  for (const float value : {0.1F, 3.4028235e38F, 1e-45F, -123456.789F}) {
    EXPECT_EQ(nlohmann::json::parse(line_of(value)).get<float>(), value);
  }
}

}  // namespace
}  // namespace kavrix::inspect
