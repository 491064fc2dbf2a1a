#include "util/json_value.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "payload/json_tree.h"

namespace kavrix::test {
namespace {

Json::Value Object(const std::string& text) {
  Json::Value root;
  EXPECT_TRUE(ParseTree(text, root)) << text;
  return root;
}

TEST(ParseStrictlyTest, NothingButOneJsonValuePasses) {
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

TEST(ParseStrictlyTest, NestingOverTheReadersLimitIsAnErrorToo) {
  Json::Value root;
  std::string error;
  EXPECT_FALSE(JsonUtil::ParseStrictly(std::string(5000, '[') + std::string(5000, ']'), root, error));
  EXPECT_NE(error, "");
}

TEST(FindTest, MemberThatIsNullIsFound) {
  const Json::Value object = Object(R"({"k":null})");
  ASSERT_NE(JsonUtil::Find(object, "k"), nullptr);
  EXPECT_TRUE(JsonUtil::Find(object, "k")->isNull());
  EXPECT_EQ(JsonUtil::Find(object, "l"), nullptr);
}

TEST(FindTest, KeyIsComparedInItsWholeLength) {
  const Json::Value object = Object(R"({"mode":1,"m\u0000":2})");
  EXPECT_EQ(JsonUtil::Find(object, std::string_view("mode_").substr(0, 4))->asInt(), 1);
  EXPECT_EQ(JsonUtil::Find(object, std::string_view("m\0", 2))->asInt(), 2);
  EXPECT_EQ(JsonUtil::Find(object, "m"), nullptr);
}

TEST(JsonValueAsTest, EachReadsOnlyItsOwnTypes) {
  EXPECT_EQ(JsonUtil::AsInteger(Json::Value(Json::UInt(4294967295U))), 4294967295);
  EXPECT_EQ(JsonUtil::AsInteger(Json::Value(5.0)), std::nullopt);
  EXPECT_EQ(JsonUtil::AsInteger(Json::Value(Json::UInt64(18446744073709551615U))), std::nullopt);
  EXPECT_EQ(JsonUtil::AsText(Json::Value("")), "");
  EXPECT_EQ(JsonUtil::AsText(Json::Value()), std::nullopt);
}

TEST(JsonValueToTextTest, LongTextIsCut) {
  const std::string text(100'000, 'a');
  EXPECT_EQ(JsonUtil::ToText(Json::Value(text)), "\"" + text.substr(0, 59) + "...");
}

TEST(JsonValueToTextTest, IsOneLineWithUtf8AsItIs) {
  EXPECT_EQ(JsonUtil::ToText(Object(R"({"b":[1,null],"a":"前"})")), R"({"a":"前","b":[1,null]})");
}

}  // namespace
}  // namespace kavrix::test
