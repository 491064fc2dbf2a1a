#include "util/json_util.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kavrix::test {
namespace {

Json::Value Object(const std::string& text) {
  Json::Value root;
  EXPECT_TRUE(JsonUtil::ParseObject(text, root)) << text;
  return root;
}

bool Parses(std::string_view text) {
  Json::Value root;
  return JsonUtil::ParseObject(text, root);
}

std::string Nested(int depth) {
  std::string text = R"({"k":)";
  text.append(static_cast<std::size_t>(depth), '[');
  text.append(static_cast<std::size_t>(depth), ']');
  return text + "}";
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

TEST(JsonUtilParseObjectTest, ObjectsPassWithCommentsAndTextBehindThem) {
  for (const char* const text : {"{}", " {} ", "{} x", "{}{", "/* c */{}", "// c\n{}", "{\"a\":/* c */1}"}) {
    EXPECT_TRUE(Parses(text)) << text;
  }
}

TEST(JsonUtilParseObjectTest, RootsThatAreNoObjectDoNotPass) {
  for (const char* const text : {"[1]", "[]", "5", "-1.5", "\"{}\"", "true", "null"}) {
    EXPECT_FALSE(Parses(text)) << text;
  }
}

TEST(JsonUtilParseObjectTest, BrokenTextsDoNotPass) {
  for (const char* const text : {"", " ", "{", "}", "{\"a\":1,}", "{a:1}", "{'a':1}", "{\"a\":NaN}",
                                 "# c\n{}", "\xEF\xBB\xBF{}", "{\"a\":\"\\ud800\"}", "{\"a\"}", "{\"a\":}"}) {
    EXPECT_FALSE(Parses(text)) << text;
  }
  EXPECT_FALSE(Parses(std::string_view()));
}

TEST(JsonUtilParseObjectTest, NestingOverTheLimitDoesNotPassAndDoesNotThrow) {
  EXPECT_TRUE(Parses(Nested(200)));
  EXPECT_FALSE(Parses(Nested(300)));
  EXPECT_FALSE(Parses(Nested(5000)));
}

TEST(JsonUtilParseObjectTest, TextIsNotReadBeyondItsEnd) {
  const std::string text = R"({"k":1}{"k":2})";
  Json::Value root;
  EXPECT_TRUE(JsonUtil::ParseObject(std::string_view(text).substr(0, 7), root));
  EXPECT_FALSE(JsonUtil::ParseObject(std::string_view(text).substr(0, 6), root));
}

TEST(JsonUtilParseStrictlyTest, NothingButOneJsonValuePasses) {
  Json::Value root;
  std::string error;
  EXPECT_TRUE(JsonUtil::ParseStrictly(R"({"k":[1,2.5,"t",null,true]})", root, error));
  for (const std::string text :
       {"", "{} x", "// c\n{}", R"({"k":1,"k":2})", "{k:1}", "{\"k\":NaN}", "5", "\"t\""}) {
    error.clear();
    EXPECT_FALSE(JsonUtil::ParseStrictly(text, root, error)) << text;
    EXPECT_NE(error, "") << text;
  }
}

TEST(JsonUtilParseStrictlyTest, NestingOverTheReadersLimitIsAnErrorToo) {
  Json::Value root;
  std::string error;
  EXPECT_FALSE(JsonUtil::ParseStrictly(Nested(5000), root, error));
  EXPECT_NE(error, "");
}

TEST(JsonUtilFindTest, MemberThatIsNullIsFound) {
  const Json::Value object = Object(R"({"k":null})");
  ASSERT_NE(JsonUtil::Find(object, "k"), nullptr);
  EXPECT_TRUE(JsonUtil::Find(object, "k")->isNull());
  EXPECT_EQ(JsonUtil::Find(object, "l"), nullptr);
}

TEST(JsonUtilFindTest, KeyIsComparedInItsWholeLength) {
  const Json::Value object = Object(R"({"mode":1,"m\u0000":2})");
  EXPECT_EQ(JsonUtil::Find(object, std::string_view("mode_").substr(0, 4))->asInt(), 1);
  EXPECT_EQ(JsonUtil::Find(object, std::string_view("m\0", 2))->asInt(), 2);
  EXPECT_EQ(JsonUtil::Find(object, "m"), nullptr);
}

TEST(JsonUtilAsTest, EachReadsItsOwnTypesAlone) {
  EXPECT_EQ(JsonUtil::AsInteger(Json::Value(Json::UInt(4294967295U))), 4294967295);
  EXPECT_EQ(JsonUtil::AsInteger(Json::Value(5.0)), std::nullopt);
  EXPECT_EQ(JsonUtil::AsInteger(Json::Value(Json::UInt64(18446744073709551615U))), std::nullopt);
  EXPECT_EQ(JsonUtil::AsDouble(Json::Value(5)), 5.0);
  EXPECT_EQ(JsonUtil::AsDouble(Json::Value(1.5)), 1.5);
  EXPECT_EQ(JsonUtil::AsDouble(Json::Value("1.5")), std::nullopt);
  EXPECT_EQ(JsonUtil::AsDouble(Json::Value(true)), std::nullopt);
  EXPECT_EQ(JsonUtil::AsText(Json::Value("")), "");
  EXPECT_EQ(JsonUtil::AsText(Json::Value()), std::nullopt);
}

TEST(JsonUtilToTextTest, LongTextIsCut) {
  const std::string text(100'000, 'a');
  EXPECT_EQ(JsonUtil::ToText(Json::Value(text)), "\"" + text.substr(0, 59) + "...");
}

TEST(JsonUtilToTextTest, IsOneLineWithUtf8AsItIs) {
  EXPECT_EQ(JsonUtil::ToText(Object(R"({"b":[1,null],"a":"前"})")), R"({"a":"前","b":[1,null]})");
}

}  // namespace
}  // namespace kavrix::test
