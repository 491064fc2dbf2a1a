#include "payload/json_tree.h"

#include <gtest/gtest.h>

namespace kavrix::test {
namespace {

bool Parses(std::string_view text) {
  Json::Value root;
  return ParseTree(text, root);
}

std::string Nested(int depth) {
  std::string text = R"({"k":)";
  text.append(static_cast<std::size_t>(depth), '[');
  text.append(static_cast<std::size_t>(depth), ']');
  return text + "}";
}

TEST(ParseTreeTest, ObjectsPassWithCommentsAndTextAfterThem) {
  for (const char* const text : {"{}", " {} ", "{} x", "{}{", "/* c */{}", "// c\n{}", "{\"a\":/* c */1}"}) {
    EXPECT_TRUE(Parses(text)) << text;
  }
}

TEST(ParseTreeTest, RootsThatAreNoObjectDoNotPass) {
  for (const char* const text : {"[1]", "[]", "5", "-1.5", "\"{}\"", "true", "null"}) {
    EXPECT_FALSE(Parses(text)) << text;
  }
}

TEST(ParseTreeTest, BrokenTextsDoNotPass) {
  for (const char* const text : {"", " ", "{", "}", "{\"a\":1,}", "{a:1}", "{'a':1}", "{\"a\":NaN}",
                                 "# c\n{}", "\xEF\xBB\xBF{}", "{\"a\":\"\\ud800\"}", "{\"a\"}", "{\"a\":}"}) {
    EXPECT_FALSE(Parses(text)) << text;
  }
  EXPECT_FALSE(Parses(std::string_view()));
}

TEST(ParseTreeTest, NestingOverTheLimitDoesNotPassAndDoesNotThrow) {
  EXPECT_TRUE(Parses(Nested(200)));
  EXPECT_FALSE(Parses(Nested(300)));
  EXPECT_FALSE(Parses(Nested(5000)));
}

TEST(ParseTreeTest, TextIsNotReadBeyondItsEnd) {
  const std::string text = R"({"k":1}{"k":2})";
  Json::Value root;
  EXPECT_TRUE(ParseTree(std::string_view(text).substr(0, 7), root));
  EXPECT_FALSE(ParseTree(std::string_view(text).substr(0, 6), root));
}

}  // namespace
}  // namespace kavrix::test
