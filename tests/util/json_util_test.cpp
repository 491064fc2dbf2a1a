#include "util/json_util.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <json/reader.h>

#include <sstream>
#include <type_traits>

#include "tests/support/global_locale.h"

namespace kavrix::test {
namespace {

static_assert(std::is_same_v<decltype(&JsonUtil::StringValue),
                             std::string (*)(const Json::Value&, const std::string&, const std::string&)>);
static_assert(
    std::is_same_v<decltype(&JsonUtil::IntValue), int (*)(const Json::Value&, const std::string&, int)>);

Json::Value Object(const std::string& text) {
  const ClassicLocale classic;
  Json::Value root;
  std::istringstream(text) >> root;
  return root;
}

TEST(JsonUtilStringValueTest, GivesTheTextOfTheKey) {
  EXPECT_EQ(JsonUtil::StringValue(Object(R"({"k":"v"})"), "k", "default"), "v");
  EXPECT_EQ(JsonUtil::StringValue(Object(R"({"k":""})"), "k", "default"), "");
}

TEST(JsonUtilStringValueTest, NumberAndEveryOtherTypeGiveTheDefault) {
  for (const char* const value : {"5", "5.0", "true", "null", "[]", "{}", R"(["v"])"}) {
    EXPECT_EQ(JsonUtil::StringValue(Object(std::string(R"({"k":)") + value + "}"), "k", "default"), "default")
        << value;
  }
}

TEST(JsonUtilStringValueTest, AbsentKeyGivesTheDefault) {
  EXPECT_EQ(JsonUtil::StringValue(Object("{}"), "k", "default"), "default");
  EXPECT_EQ(JsonUtil::StringValue(Object(R"({"K":"v","k ":"v"})"), "k", "default"), "default");
}

TEST(JsonUtilStringValueTest, NulAndInvalidBytesStayInTheText) {
  EXPECT_EQ(JsonUtil::StringValue(Object(R"({"k":"a\u0000b"})"), "k", ""), std::string("a\0b", 3));
  EXPECT_EQ(JsonUtil::StringValue(Object("{\"k\":\"\xFF\"}"), "k", ""), "\xFF");
}

TEST(JsonUtilStringValueTest, ValueThatIsNoObjectHasNoKeys) {
  for (const Json::Value& value :
       {Json::Value(5), Json::Value("text"), Json::Value(Json::arrayValue), Json::Value()}) {
    EXPECT_EQ(JsonUtil::StringValue(value, "k", "default"), "default");
    EXPECT_EQ(JsonUtil::IntValue(value, "k", 9), 9);
  }
}

TEST(JsonUtilStringValueTest, TextMadeOfANullPointerIsEmpty) {
  Json::Value object;
  object["k"] = Json::Value(Json::StaticString(nullptr));
  EXPECT_EQ(JsonUtil::StringValue(object, "k", "default"), "");
}

TEST(JsonUtilIntValueTest, GivesTheIntegerOfTheKey) {
  EXPECT_EQ(JsonUtil::IntValue(Object(R"({"k":5})"), "k", 9), 5);
  EXPECT_EQ(JsonUtil::IntValue(Object(R"({"k":-2147483648})"), "k", 9), -2147483647 - 1);
  EXPECT_EQ(JsonUtil::IntValue(Object(R"({"k":2147483647})"), "k", 9), 2147483647);
}

TEST(JsonUtilIntValueTest, TextOfDigitsGivesTheDefault) {
  EXPECT_EQ(JsonUtil::IntValue(Object(R"({"k":"5"})"), "k", 9), 9);
}

TEST(JsonUtilIntValueTest, EveryOtherTypeGivesTheDefault) {
  for (const char* const value : {"true", "false", "null", "[5]", R"({"k":5})"}) {
    EXPECT_EQ(JsonUtil::IntValue(Object(std::string(R"({"k":)") + value + "}"), "k", 9), 9) << value;
  }
  EXPECT_EQ(JsonUtil::IntValue(Object("{}"), "k", 9), 9);
}

TEST(JsonUtilIntValueTest, RealWithAnIntegralValueGivesTheDefault) {
  for (const char* const value : {"5.0", "5e0", "1e5", "5.5"}) {
    EXPECT_EQ(JsonUtil::IntValue(Object(std::string(R"({"k":)") + value + "}"), "k", 9), 9) << value;
  }
}

TEST(JsonUtilIntValueTest, ValueOutsideTheSigned32BitRangeGivesTheDefault) {
  for (const char* const value : {"2147483648", "3000000000", "4294967295", "-2147483649",
                                  "9223372036854775807", "18446744073709551615", "99999999999999999999"}) {
    EXPECT_EQ(JsonUtil::IntValue(Object(std::string(R"({"k":)") + value + "}"), "k", 9), 9) << value;
  }
}

TEST(JsonUtilIntValueTest, OfAKeyThatOccursTwiceTheLastOneCounts) {
  EXPECT_EQ(JsonUtil::IntValue(Object(R"({"k":5,"k":6})"), "k", 9), 6);
  EXPECT_EQ(JsonUtil::IntValue(Object(R"({"k":5,"k":"6"})"), "k", 9), 9);
}

}  // namespace
}  // namespace kavrix::test
