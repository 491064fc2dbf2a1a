#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "config/bubble_layer_config_file.h"

// Tests what a configuration file must not hold, and the exact error messages.
namespace kavrix::test {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

// Returns the message of the error, empty when there is none.
std::string ErrorOf(const std::string& json_text) {
  try {
    ParseBubbleLayerConfig(json_text);
    return "";
  } catch (const ConfigError& error) {
    return error.what();
  }
}

std::string ErrorOfLayer(const std::string& members) {
  return ErrorOf(R"({"bubble_layer":{)" + members + "}}");
}

std::string ErrorOfValues(const std::string& record, const std::string& values) {
  return ErrorOfLayer("\"" + record + R"(":{"values":)" + values + "}");
}

constexpr char kWord[] = "an integer from 0 to 4294967295 or a string such as \"0xffff0000\"";

TEST(BubbleLayerConfigErrorsTest, TextThatIsNoJson) {
  for (const std::string text : {"", "{", "{} x", "// c\n{}", "{'a':1}", R"({"context_name":"a",})"}) {
    EXPECT_THAT(ErrorOf(text), StartsWith("not valid JSON: Line ")) << text;
  }
  EXPECT_EQ(ErrorOf("{\n  \"context_name\": \"a\",\n}"),
            "not valid JSON: Line 3, Column 1: expected a key in double quotes, found '}'");
}

TEST(BubbleLayerConfigErrorsTest, TextThatOnlyLenientReadersTake) {
  using namespace std::string_literals;
  const std::string wide = R"({"bubble_layer":{"turn_style":{"values":[)";
  for (const std::string& text :
       {"{}\0x"s, "\xEF\xBB\xBF{}"s, "{\"context_name\":\"a\tb\"}"s, "{\"context_name\":\"\xFF\"}"s,
        wide + "-]}}}", wide + "01]}}}", wide + "5.]}}}", wide + "1,]}}}", std::string(100'000, '[')}) {
    EXPECT_THAT(ErrorOf(text), StartsWith("not valid JSON: Line 1, Column ")) << text;
  }
}

TEST(BubbleLayerConfigErrorsTest, KeyThatStandsTwice) {
  EXPECT_THAT(ErrorOf(R"({"context_name":"a","context_name":"b"})"),
              HasSubstr(R"(key "context_name" is there twice)"));
  EXPECT_THAT(ErrorOfLayer(R"("turn_style":{},"turn_style":{})"),
              HasSubstr(R"(key "turn_style" is there twice)"));
}

TEST(BubbleLayerConfigErrorsTest, RootThatIsNoObject) {
  EXPECT_EQ(ErrorOf("[1]"), "the configuration: expected an object, found [1]");
}

TEST(BubbleLayerConfigErrorsTest, UnknownKey) {
  EXPECT_EQ(ErrorOf(R"({"bubble_layers":{}})"),
            "the configuration: unknown key \"bubble_layers\", expected \"context_name\", "
            "\"multi_light_type\", \"bubble_layer\" or \"marker_bubble\"");
}

TEST(BubbleLayerConfigErrorsTest, ContextNameThatIsNoText) {
  EXPECT_EQ(ErrorOf(R"({"context_name":5})"), "context_name: expected a string, found 5");
  EXPECT_EQ(ErrorOf(R"({"context_name":null})"), "context_name: expected a string, found null");
}

TEST(BubbleLayerConfigErrorsTest, MultiLightTypeThatIsNo32BitInteger) {
  EXPECT_EQ(ErrorOf(R"({"multi_light_type":"1"})"),
            "multi_light_type: expected a 32-bit integer, found \"1\"");
  EXPECT_EQ(ErrorOf(R"({"multi_light_type":1.0})"), "multi_light_type: expected a 32-bit integer, found 1.0");
  EXPECT_EQ(ErrorOf(R"({"multi_light_type":2147483648})"),
            "multi_light_type: expected a 32-bit integer, found 2147483648");
  EXPECT_EQ(ErrorOf(R"({"multi_light_type":2147483647})"), "");
  EXPECT_EQ(ErrorOf(R"({"multi_light_type":-2147483648})"), "");
}

TEST(BubbleLayerConfigErrorsTest, BubbleLayerThatIsNoObject) {
  EXPECT_EQ(ErrorOf(R"({"bubble_layer":[]})"), "bubble_layer: expected an object, found []");
}

TEST(BubbleLayerConfigErrorsTest, UnknownRecord) {
  EXPECT_EQ(ErrorOfLayer(R"("trafic_style":{})"),
            "bubble_layer: unknown key \"trafic_style\", expected a record such as \"traffic_style\"");
  EXPECT_EQ(ErrorOfLayer(R"("unread_style_14":{})"),
            "bubble_layer: unknown key \"unread_style_14\", expected a record such as \"traffic_style\"");
  EXPECT_EQ(ErrorOfLayer(R"("":{})"),
            "bubble_layer: unknown key \"\", expected a record such as \"traffic_style\"");
}

TEST(BubbleLayerConfigErrorsTest, RecordThatIsNoObject) {
  EXPECT_EQ(ErrorOfLayer(R"("traffic_style":[1,2])"), "traffic_style: expected an object, found [1,2]");
}

TEST(BubbleLayerConfigErrorsTest, UnknownKeyOfARecord) {
  EXPECT_EQ(ErrorOfLayer(R"("traffic_style":{"value":[]})"),
            "traffic_style: unknown key \"value\", expected \"name\" or \"values\"");
}

TEST(BubbleLayerConfigErrorsTest, NameThatIsNoText) {
  EXPECT_EQ(ErrorOfLayer(R"("traffic_style":{"name":7})"), "traffic_style.name: expected a string, found 7");
}

TEST(BubbleLayerConfigErrorsTest, ValuesThatAreNoArray) {
  EXPECT_EQ(ErrorOfValues("traffic_style", "5"), "traffic_style.values: expected an array, found 5");
}

TEST(BubbleLayerConfigErrorsTest, MarkerBubbleIsCheckedAsTheRecordsOfTheLayerAre) {
  EXPECT_EQ(ErrorOf(R"({"marker_bubble":[]})"), "marker_bubble: expected an object, found []");
  EXPECT_EQ(ErrorOf(R"({"marker_bubble":{"style":1}})"),
            "marker_bubble: unknown key \"style\", expected \"name\" or \"values\"");
  EXPECT_EQ(ErrorOf(R"({"marker_bubble":{"name":1}})"), "marker_bubble.name: expected a string, found 1");
  EXPECT_EQ(ErrorOf(R"({"marker_bubble":{"values":[0,1.5]}})"),
            std::string("marker_bubble value 2: expected ") + kWord + ", found 1.5");
  EXPECT_EQ(ErrorOf(R"({"marker_bubble":{"values":[0,0,"1"]}})"),
            "marker_bubble value 3: expected a number, found \"1\"");
  EXPECT_EQ(ErrorOf(R"({"marker_bubble":{"values":[0,0,0,0,0]}})"),
            "marker_bubble value 5: expected at most 4 values, found 5");
  EXPECT_EQ(ErrorOfLayer(R"("marker_bubble":{})"),
            "bubble_layer: unknown key \"marker_bubble\", expected a record such as \"traffic_style\"");
}

TEST(BubbleLayerConfigErrorsTest, TooManyValues) {
  EXPECT_EQ(ErrorOfValues("turn_style", "[1,2,3]"), "turn_style value 3: expected at most 2 values, found 3");
  EXPECT_EQ(ErrorOfValues("traffic_scene_style", "[0,0,0,0,0,0,0,0,0,0,0,0]"),
            "traffic_scene_style value 12: expected at most 11 values, found 12");
}

TEST(BubbleLayerConfigErrorsTest, RealWhereAWordStands) {
  EXPECT_EQ(ErrorOfValues("traffic_style", "[0,1.5]"),
            std::string("traffic_style value 2: expected ") + kWord + ", found 1.5");
  EXPECT_EQ(ErrorOfValues("traffic_style", "[1.0]"),
            std::string("traffic_style value 1: expected ") + kWord + ", found 1.0");
}

TEST(BubbleLayerConfigErrorsTest, WordOutOfRange) {
  for (const std::string number : {"-1", "4294967296", "9223372036854775808", "18446744073709551615"}) {
    EXPECT_EQ(ErrorOfValues("eta_style", "[0,0," + number + "]"),
              std::string("eta_style value 3: expected ") + kWord + ", found " + number);
  }
}

TEST(BubbleLayerConfigErrorsTest, ThingsThatAreNoWord) {
  for (const std::string value :
       {"null", "true", "[]", "{}", R"("")", R"("0x")", R"("ff")", R"("255")", R"("0XFF")", R"("0xfg")",
        R"("0x100000000")", R"(" 0xff")", R"("0xff ")", R"("0x-1")", R"("0x+1")", R"("-0x1")", R"("0x 1")",
        R"("#ff0000")", R"("0x0x1")"}) {
    EXPECT_EQ(ErrorOfValues("camera_style", "[" + value + "]"),
              std::string("camera_style value 1: expected ") + kWord + ", found " + value);
  }
}

TEST(BubbleLayerConfigErrorsTest, ThingsThatAreNoFloat) {
  for (const std::string value : {"null", "true", "[]", "{}", R"("1.0")", R"("0x3f800000")"}) {
    EXPECT_EQ(ErrorOfValues("companion_style", "[0,0,0,0,0,0," + value + "]"),
              "companion_style value 7: expected a number, found " + value);
  }
}

TEST(BubbleLayerConfigErrorsTest, FloatOutOfRange) {
  EXPECT_EQ(ErrorOfValues("route_label_style", "[0,0,0,3.5e38]"),
            "route_label_style value 4: expected a number that a float can hold, found 3.5e38");
  EXPECT_EQ(ErrorOfValues("route_label_style", "[0,0,0,-3.5e38]"),
            "route_label_style value 4: expected a number that a float can hold, found -3.5e38");
  const std::string middle = "340282356779733661637539395458142568448";
  EXPECT_EQ(ErrorOfValues("route_label_style", "[0,0,0," + middle + "]"),
            "route_label_style value 4: expected a number that a float can hold, found " + middle);
}

TEST(BubbleLayerConfigErrorsTest, NumberThatEvenADoubleCannotHold) {
  EXPECT_EQ(ErrorOfValues("route_label_style", "[0,0,0,1e400]"),
            "route_label_style value 4: expected a number that a float can hold, found 1e400");
  EXPECT_EQ(ErrorOf(R"({"multi_light_type":-1e400})"),
            "multi_light_type: expected a 32-bit integer, found -1e400");
}

TEST(BubbleLayerConfigErrorsTest, NothingOfABrokenConfigurationIsLoaded) {
  BubbleLayerConfigFile file = ParseBubbleLayerConfig(R"({"context_name":"earlier"})");
  const std::string broken =
      R"({"bubble_layer":{"eta_style":{"name":"e"},"turn_style":5},"context_name":"new"})";
  EXPECT_THROW(file = ParseBubbleLayerConfig(broken), ConfigError);
  EXPECT_EQ(file.context_name, "earlier");
  EXPECT_EQ(file.bubble_layer.eta_style.name, "");
}

TEST(BubbleLayerConfigErrorsTest, FindIsTheTextOfTheFile) {
  for (const std::string value : {"1.10", "1E2", "-0.0", "12345678901234567890", "1234567890123456789012",
                                  "1e-7", R"("\u0041\/")", "[ 1,\t2 ]", "{ \"b\": 1, \"a\": 2 }"}) {
    EXPECT_EQ(ErrorOf(R"({ "multi_light_type" : )" + value + " }"),
              "multi_light_type: expected a 32-bit integer, found " + value);
  }
}

TEST(BubbleLayerConfigErrorsTest, KeysAreShownEscapedAndCut) {
  EXPECT_EQ(ErrorOfLayer(R"("a\u0000b\n":{})"),
            "bubble_layer: unknown key \"a\\u0000b\\n\", expected a record such as \"traffic_style\"");
  EXPECT_EQ(
      ErrorOf("{\"" + std::string(100'000, 'k') + "\":1}"),
      "the configuration: unknown key \"" + std::string(60, 'k') +
          "...\", expected \"context_name\", \"multi_light_type\", \"bubble_layer\" or \"marker_bubble\"");
}

TEST(BubbleLayerConfigErrorsTest, LongNumberGivesAShortMessage) {
  const std::string number(100'000, '7');
  EXPECT_EQ(ErrorOfValues("turn_style", "[" + number + "]"),
            std::string("turn_style value 1: expected ") + kWord + ", found " + number.substr(0, 60) + "...");
  EXPECT_EQ(ErrorOfValues("light_wait_style", "[0,0," + number + "]"),
            "light_wait_style value 3: expected a number that a float can hold, found " +
                number.substr(0, 60) + "...");
}

TEST(BubbleLayerConfigErrorsTest, FindIsCutBetweenCharacters) {
  std::string text;
  for (int i = 0; i < 30; ++i) text += "前a";
  EXPECT_EQ(
      ErrorOf(R"({"multi_light_type":")" + text + "\"}"),
      "multi_light_type: expected a 32-bit integer, found \"" + text.substr(0, text.size() - 1) + "...");
}

TEST(BubbleLayerConfigErrorsTest, LongFindIsCut) {
  const std::string text(100, 'a');
  EXPECT_EQ(ErrorOf(R"({"multi_light_type":")" + text + "\"}"),
            "multi_light_type: expected a 32-bit integer, found \"" + text.substr(0, 59) + "...");
}

TEST(BubbleLayerConfigErrorsTest, FindOfSixtyBytesStands) {
  const std::string text = "\"" + std::string(58, 'a') + "\"";
  EXPECT_EQ(ErrorOf(R"({"multi_light_type":)" + text + "}"),
            "multi_light_type: expected a 32-bit integer, found " + text);
}

}  // namespace
}  // namespace kavrix::test
