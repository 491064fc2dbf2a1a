#include "config/bubble_layer_config_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "map_resource/map_resource_transform.h"
#include "tests/support/global_locale.h"
#include "tests/support/read_file.h"

namespace kavrix::test {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;

const BubbleLayerConfigContainer kEmptyLayer;

BubbleLayerConfigFile WithRecord(const std::string& record, const std::string& values) {
  return ParseBubbleLayerConfig(R"({"bubble_layer":{")" + record + R"(":{"values":)" + values + "}}}");
}

TEST(BubbleLayerConfigFileTest, EmptyObjectIsTheDefaultConfiguration) {
  const BubbleLayerConfigFile file = ParseBubbleLayerConfig("{}");
  EXPECT_EQ(file.context_name, "");
  EXPECT_EQ(file.multi_light_type, 0);
  ForEachStyleRecord(file.bubble_layer, [](const char* name, const auto& record) {
    EXPECT_EQ(record.name, "") << name;
    EXPECT_THAT(record.values, Each(0U)) << name;
  });
}

TEST(BubbleLayerConfigFileTest, EveryKeyIsRead) {
  const BubbleLayerConfigFile file = ParseBubbleLayerConfig(R"({
      "context_name": "主图", "multi_light_type": -3,
      "bubble_layer": {"traffic_style": {"name": "traffic_day", "values": [0, 4294901760, 1.0]}}})");
  EXPECT_EQ(file.context_name, "主图");
  EXPECT_EQ(file.multi_light_type, -3);
  EXPECT_EQ(file.bubble_layer.traffic_style.name, "traffic_day");
  EXPECT_EQ(file.bubble_layer.traffic_style.Word(1), 0U);
  EXPECT_EQ(file.bubble_layer.traffic_style.Word(2), 4294901760U);
  EXPECT_EQ(file.bubble_layer.traffic_style.Float(3), 1.0F);
}

TEST(BubbleLayerConfigFileTest, MarkerBubbleHasARecordOfItsOwn) {
  const MarkerBubbleConfig record =
      ParseBubbleLayerConfig(R"({"marker_bubble":{"name":"m","values":[1,"0xff000002",1,1]}})").marker_bubble;
  EXPECT_EQ(record.name, "m");
  EXPECT_THAT(record.values, ElementsAre(1U, 0xFF000002U, 0x3F800000U, 1U));
}

TEST(BubbleLayerConfigFileTest, MarkerBubbleLeftOutIsEmpty) {
  const MarkerBubbleConfig record = ParseBubbleLayerConfig("{}").marker_bubble;
  EXPECT_EQ(record.name, "");
  EXPECT_THAT(record.values, Each(0U));
}

TEST(BubbleLayerConfigFileTest, RecordsLeftOutAndMissingValuesAreZero) {
  const auto layer = WithRecord("turn_style", "[5]").bubble_layer;
  EXPECT_THAT(layer.turn_style.values, ElementsAre(5U, 0U));
  EXPECT_EQ(layer.turn_style.name, "");
  EXPECT_EQ(layer.traffic_style.name, "");
  EXPECT_THAT(layer.traffic_style.values, Each(0U));
}

TEST(BubbleLayerConfigFileTest, EveryRecordTakesAsManyValuesAsItHas) {
  ForEachStyleRecord(kEmptyLayer, [](const std::string& name, const auto& record) {
    std::string values = "[1";
    for (std::size_t i = 1; i < record.values.size(); ++i) values += ",1";
    EXPECT_NO_THROW(WithRecord(name, values + "]")) << name;
    EXPECT_THROW(WithRecord(name, values + ",1]"), ConfigError) << name;
  });
}

// Lists the values that are floats. In their cells 1 is 0x3F800000, in all others 1.
TEST(BubbleLayerConfigFileTest, EachValueIsReadAsTheFloatOrTheWordThatItIs) {
  const auto float_numbers = [](const std::string& record) -> std::vector<std::size_t> {
    if (record == "traffic_style" || record == "traffic_nav_style" || record == "traffic_scene_style") {
      return {3, 4, 5, 6, 8, 9, 10};
    }
    if (record == "companion_style") return {6, 7};
    if (record == "eta_style" || record == "eta_scene_style") return {2, 8};
    if (record == "route_label_style") return {4};
    if (record == "route_name_style" || record == "route_name_scene_style" ||
        record == "hd_long_solid_style" || record == "indoor_entries_style" || record == "light_wait_style") {
      return {3};
    }
    return {};
  };
  ForEachStyleRecord(kEmptyLayer, [&](const std::string& name, const auto& record) {
    std::string values = "[1";
    for (std::size_t i = 1; i < record.values.size(); ++i) values += ",1";
    std::vector<std::size_t> found;
    const auto layer = WithRecord(name, values + "]").bubble_layer;
    ForEachStyleRecord(layer, [&](const std::string& other, const auto& read) {
      for (std::size_t number = 1; other == name && number <= read.kValueCount; ++number) {
        if (read.Word(number) == 0x3F800000U) found.push_back(number);
      }
    });
    EXPECT_EQ(found, float_numbers(name)) << name;
  });
}

TEST(BubbleLayerConfigFileTest, WordTakesEveryIntegerOf32BitsAndHexTexts) {
  const std::pair<const char*, std::uint32_t> words[] = {{"0", 0},
                                                         {"4294967295", 4294967295U},
                                                         {"\"0xffff0000\"", 0xFFFF0000U},
                                                         {"\"0xFFFF0000\"", 0xFFFF0000U},
                                                         {"\"0x0\"", 0},
                                                         {"\"0x1\"", 1},
                                                         {"\"0xaBcD\"", 0xABCDU},
                                                         {"\"0xffffffff\"", 0xFFFFFFFFU}};
  for (const auto& [text, word] : words) {
    EXPECT_EQ(WithRecord("turn_style", std::string("[") + text + "]").bubble_layer.turn_style.Word(1), word)
        << text;
  }
}

TEST(BubbleLayerConfigFileTest, FloatTakesEveryNumberThatAFloatHolds) {
  const std::pair<const char*, float> numbers[] = {
      {"1", 1.0F},
      {"-1.5", -1.5F},
      {"0.1", 0.1F},
      {"4294967296", 4294967296.0F},
      {"-0.0", -0.0F},
      {"3.4028234e38", 3.4028234e38F},
      {"1e-60", 0.0F},
      {"-3.4028234663852886e38", -3.40282347e38F},
      {"3.4028235e+38", std::numeric_limits<float>::max()},  // as the largest float is printed
      {"340282356779733661637539395458142568447", std::numeric_limits<float>::max()},
      {"9007199791611905",
       9007200328482816.0F},  // to a double and then to a float it would be ...7199254740992
      {"1.000000059604644775390625000001", 1.00000012F}};
  for (const auto& [text, number] : numbers) {
    const auto values = "[0,0," + std::string(text) + "]";
    EXPECT_EQ(WithRecord("light_wait_style", values).bubble_layer.light_wait_style.Float(3), number) << text;
  }
}

TEST(BubbleLayerConfigFileTest, ValuesOfUnreadRecordsAreKeptToo) {
  EXPECT_EQ(WithRecord("unread_style_12", R"([0,"0xff"])").bubble_layer.unread_style_12.Word(2), 255U);
}

TEST(BubbleLayerConfigFileTest, LoadedConfigurationReplacesTheWholeEarlierOne) {
  KavrixContext context("ctx");
  context.SetBubbleLayerConfig(
      ParseBubbleLayerConfig(R"({"bubble_layer":{"traffic_style":{"name":"t"},"turn_style":{"name":"a"}}})")
          .bubble_layer);
  context.SetBubbleLayerConfig(
      ParseBubbleLayerConfig(R"({"bubble_layer":{"turn_style":{"name":"b"}}})").bubble_layer);
  const BubbleLayerConfigContainer config = context.GetBubbleLayerConfigInLock();
  EXPECT_EQ(config.turn_style.name, "b");
  EXPECT_EQ(config.traffic_style.name, "");
}

TEST(BubbleLayerConfigFileTest, LoadsUnderEveryGlobalLocale) {
  const GlobalLocale other;
  EXPECT_EQ(WithRecord("light_wait_style", "[0,0,1234.5]").bubble_layer.light_wait_style.Float(3), 1234.5F);
  EXPECT_EQ(ParseBubbleLayerConfig(R"({"multi_light_type":1234567})").multi_light_type, 1234567);
  EXPECT_THROW(WithRecord("light_wait_style", "[0,0,1,5,0]"), ConfigError);
}

TEST(BubbleLayerConfigFileTest, BundledConfigurationLoadsAndNamesEveryRecordThatIsRead) {
  const BubbleLayerConfigFile file =
      ParseBubbleLayerConfig(ReadFile(KAVRIX_SOURCE_DIR "/samples/default_config.json"));
  EXPECT_EQ(file.context_name, "main-map");
  EXPECT_EQ(file.multi_light_type, 0);
  ForEachStyleRecord(file.bubble_layer, [](const std::string& name, const auto& record) {
    const bool is_read = name.rfind("unread_", 0) != 0;
    EXPECT_EQ(!record.name.empty(), is_read) << name;
  });
  EXPECT_EQ(file.marker_bubble.name, "marker_bubble");
  EXPECT_GT(file.marker_bubble.Float(3), 0.0F);
}

}  // namespace
}  // namespace kavrix::test
