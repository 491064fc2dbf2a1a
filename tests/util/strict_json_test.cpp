#include "util/strict_json.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <nlohmann/json.hpp>
#include <random>
#include <set>

#include "tests/support/effort.h"
#include "tests/support/global_locale.h"
#include "util/json_value.h"
#include "util/utf8.h"

namespace kavrix::test {
namespace {

using namespace std::string_literals;

// Returns the message of the error, empty when there is none.
std::string ErrorOf(const std::string& text) {
  try {
    JsonUtil::ReadStrictly(text);
    return "";
  } catch (const JsonUtil::JsonError& error) {
    return error.what();
  }
}

std::string Nested(std::size_t depth) { return std::string(depth, '[') + std::string(depth, ']'); }

TEST(StrictJsonTest, ReadsEveryTypeOfValue) {
  const Json::Value root = JsonUtil::ReadStrictly(
      " {\"a\" : [ 1 , -2.5e1 , \"t\" , true , false , null , { } , [ ] ] ,\r\n\t\"\" : {\"b\":\"\"} } ");
  EXPECT_EQ(JsonUtil::ToText(root), R"({"":{"b":""},"a":[1,-25.0,"t",true,false,null,{},[]]})");
  EXPECT_TRUE(root["a"][0].type() == Json::intValue);
  EXPECT_TRUE(root["a"][1].type() == Json::realValue);
}

TEST(StrictJsonTest, ValuesKnowTheirPlaces) {
  const std::string text = R"({"a": [1.50, {"b":"x\n"}]})";
  const Json::Value root = JsonUtil::ReadStrictly(text);
  EXPECT_EQ(JsonUtil::SourceOf(root, text), text);
  EXPECT_EQ(JsonUtil::SourceOf(root["a"], text), R"([1.50, {"b":"x\n"}])");
  EXPECT_EQ(JsonUtil::SourceOf(root["a"][0], text), "1.50");
  EXPECT_EQ(JsonUtil::SourceOf(root["a"][1]["b"], text), R"("x\n")");
}

TEST(StrictJsonTest, IntegersOf64BitsAreKeptAndLargerOnesAreReals) {
  const Json::Value root =
      JsonUtil::ReadStrictly("[-9223372036854775808,18446744073709551615,18446744073709551616,-0,0]");
  EXPECT_EQ(root[0].asInt64(), std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(root[1].asUInt64(), std::numeric_limits<std::uint64_t>::max());
  EXPECT_TRUE(root[2].type() == Json::realValue);
  EXPECT_EQ(root[2].asDouble(), 18446744073709551616.0);
  EXPECT_EQ(JsonUtil::AsInteger(root[3]), 0);
  EXPECT_EQ(JsonUtil::AsInteger(root[4]), 0);
}

TEST(StrictJsonTest, NumbersThatNoDoubleHoldsAreInfinite) {
  const Json::Value root = JsonUtil::ReadStrictly("[1e400,-1e400,1e-400]");
  EXPECT_EQ(root[0].asDouble(), std::numeric_limits<double>::infinity());
  EXPECT_EQ(root[1].asDouble(), -std::numeric_limits<double>::infinity());
  EXPECT_EQ(root[2].asDouble(), 0.0);
}

TEST(StrictJsonTest, EscapesAreDecoded) {
  const Json::Value root = JsonUtil::ReadStrictly(
      R"(["\"\\\/\b\f\n\r\t","\u0041\u00e9\u524d\uD83d\ude97\uffff","a\u0000b","\u007f"])");
  EXPECT_EQ(root[0].asString(), "\"\\/\b\f\n\r\t");
  EXPECT_EQ(root[1].asString(), "A\xC3\xA9\xE5\x89\x8D\xF0\x9F\x9A\x97\xEF\xBF\xBF");
  EXPECT_EQ(root[2].asString(), "a\0b"s);
  EXPECT_EQ(root[3].asString(), "\x7F");
}

TEST(StrictJsonTest, KeysAreWholeStrings) {
  const Json::Value root = JsonUtil::ReadStrictly("{\"a\\u0000b\":1,\"a\":2,\"\xE5\x89\x8D\":3}");
  EXPECT_EQ(root.size(), 3U);
  EXPECT_EQ(root["a\0b"s].asInt(), 1);
  EXPECT_EQ(root["a"].asInt(), 2);
  EXPECT_EQ(root["\xE5\x89\x8D"].asInt(), 3);
}

TEST(StrictJsonTest, ErrorsHaveLineColumnExpectedAndFound) {
  const std::pair<std::string, std::string> errors[] = {
      {"", "Line 1, Column 1: expected an object or an array, found the end"},
      {"5", "Line 1, Column 1: expected an object or an array, found '5'"},
      {"\xEF\xBB\xBF{}", "Line 1, Column 1: expected an object or an array, found U+FEFF"},
      {"// c\n{}", "Line 1, Column 1: expected an object or an array, found '/'"},
      {"{} x", "Line 1, Column 4: expected the end, found 'x'"},
      {"{}\0x"s, "Line 1, Column 3: expected the end, found U+0000"},
      {"{\n  'a':1}", "Line 2, Column 3: expected a key in double quotes, found '''"},
      {R"({"a":1,})", "Line 1, Column 8: expected a key in double quotes, found '}'"},
      {R"({"a"=1})", "Line 1, Column 5: expected ':', found '='"},
      {R"({"a":1 "b":2})", "Line 1, Column 8: expected ',' or '}', found '\"'"},
      {"{\"前\": 1\r\n;", "Line 2, Column 1: expected ',' or '}', found ';'"},
      {"{\r \"a\":1\r\n\r\n;", "Line 4, Column 1: expected ',' or '}', found ';'"},
      {"[\xC2\xA0]", "Line 1, Column 2: expected a value, found '\xC2\xA0' (U+00A0)"},
      {"[1,]", "Line 1, Column 4: expected a value, found ']'"},
      {"[\"前\",前]", "Line 1, Column 6: expected a value, found '前' (U+524D)"},
      {"[\xFF]", "Line 1, Column 2: expected a value, found the byte 0xff"},
      {"[1", "Line 1, Column 3: expected ',' or ']', found the end"},
      {"[nul]", "Line 1, Column 2: expected a value, found 'n'"},
      {"[nullx]", "Line 1, Column 6: expected ',' or ']', found 'x'"},
      {"[NaN]", "Line 1, Column 2: expected a value, found 'N'"},
      {"[+1]", "Line 1, Column 2: expected a value, found '+'"},
      {"[.5]", "Line 1, Column 2: expected a value, found '.'"},
      {"[-]", "Line 1, Column 3: expected a digit, found ']'"},
      {"[5.]", "Line 1, Column 4: expected a digit, found ']'"},
      {"[1e]", "Line 1, Column 4: expected a digit, found ']'"},
      {"[1e+]", "Line 1, Column 5: expected a digit, found ']'"},
      {"[01]", "Line 1, Column 3: a number does not begin with 0"},
      {"[-00]", "Line 1, Column 4: a number does not begin with 0"},
      {"[\"a\nb\"]", "Line 1, Column 4: expected an escape such as \\t, found U+000A"},
      {"[\"a\0\"]"s, "Line 1, Column 4: expected an escape such as \\t, found U+0000"},
      {"[\"\x1F\"]", "Line 1, Column 3: expected an escape such as \\t, found U+001F"},
      {"[\"\xED\xA0\x80\"]", "Line 1, Column 3: expected UTF-8, found the byte 0xed"},
      {"[\"a", "Line 1, Column 4: expected '\"', found the end"},
      {R"(["\x"])", R"(Line 1, Column 4: expected one of " \ / b f n r t u after '\', found 'x')"},
      {"[\"\\", R"(Line 1, Column 4: expected one of " \ / b f n r t u after '\', found the end)"},
      {R"(["\u12g4"])", "Line 1, Column 7: expected four hexadecimal digits, found 'g'"},
      {R"(["\u-123"])", "Line 1, Column 5: expected four hexadecimal digits, found '-'"},
      {R"(["\ud800"])", "Line 1, Column 3: half of a surrogate pair"},
      {R"(["\udc00\ud800"])", "Line 1, Column 3: half of a surrogate pair"},
      {R"(["\ud800\u0041"])", "Line 1, Column 3: half of a surrogate pair"},
      {R"(["\ud800\ud800"])", "Line 1, Column 3: half of a surrogate pair"},
      {"{\"k\":1,\n \"\\u006b\":2}", "Line 2, Column 2: key \"\\u006b\" is there twice"},
  };
  for (const auto& [text, error] : errors) EXPECT_EQ(ErrorOf(text), error) << text;
}

TEST(StrictJsonTest, NestingOver256LevelsIsAnErrorHoweverDeep) {
  EXPECT_EQ(ErrorOf(Nested(256)), "");
  EXPECT_EQ(ErrorOf("[" + Nested(256) + "]"), "Line 1, Column 257: nested deeper than 256 levels");
  EXPECT_EQ(ErrorOf(std::string(255, '[') + "1" + std::string(255, ']')), "");
  EXPECT_EQ(ErrorOf(std::string(256, '[') + "1"), "Line 1, Column 257: nested deeper than 256 levels");
  std::string objects;
  for (int i = 0; i < 1'000'000; ++i) objects += R"({"a":)";
  EXPECT_EQ(ErrorOf(objects), "Line 1, Column 1281: nested deeper than 256 levels");
}

TEST(StrictJsonTest, MessagesStayShort) {
  const std::string key(100'000, 'k');
  EXPECT_EQ(ErrorOf("{\"" + key + "\":1,\"" + key + "\":2}"),
            "Line 1, Column 100007: key \"" + key.substr(0, 60) + "...\" is there twice");
  EXPECT_EQ(ErrorOf("[" + std::string(100'000, '9') + "x]"),
            "Line 1, Column 100002: expected ',' or ']', found 'x'");
}

TEST(StrictJsonTest, ExcerptIsCutBetweenCharacters) {
  const auto times = [](std::size_t count, const std::string& text) {
    std::string repeated;
    for (std::size_t i = 0; i < count; ++i) repeated += text;
    return repeated;
  };
  EXPECT_EQ(Excerpt(""), "");
  EXPECT_EQ(Excerpt(times(60, "a")), times(60, "a"));
  EXPECT_EQ(Excerpt(times(61, "a")), times(60, "a") + "...");
  EXPECT_EQ(Excerpt("a" + times(59, "前")), "a" + times(59, "前"));
  EXPECT_EQ(Excerpt("a" + times(60, "前")), "a" + times(59, "前") + "...");
}

TEST(StrictJsonTest, NoGlobalLocaleChangesWhatIsRead) {
  const GlobalLocale other;
  const Json::Value root = JsonUtil::ReadStrictly("[1.5,1234567.25,1234567]");
  EXPECT_EQ(root[0].asDouble(), 1.5);
  EXPECT_EQ(root[1].asDouble(), 1234567.25);
  EXPECT_EQ(root[2].asInt(), 1234567);
  EXPECT_EQ(ErrorOf(std::string(2000, '\n') + "[" + std::string(1500, ' ')),
            "Line 2001, Column 1502: expected a value, found the end");
}

// Returns the verdict of another strict reader. It also accepts a byte order mark, a NUL as the end,
// duplicate keys and any root.
bool OtherReaderAccepts(const std::string& text) {
  if (text.rfind("\xEF\xBB\xBF", 0) == 0 || text.find('\0') != std::string::npos) return false;
  bool key_twice = false;
  std::vector<std::set<std::string>> keys;
  const auto watch = [&](int, nlohmann::json::parse_event_t event, const nlohmann::json& parsed) {
    if (event == nlohmann::json::parse_event_t::object_start) keys.emplace_back();
    if (event == nlohmann::json::parse_event_t::key) {
      key_twice = key_twice || !keys.back().insert(parsed.get<std::string>()).second;
    }
    if (event == nlohmann::json::parse_event_t::object_end) keys.pop_back();
    return true;
  };
  const nlohmann::json root = nlohmann::json::parse(text, watch, false);
  return root.is_structured() && !key_twice;
}

nlohmann::json ToOther(const Json::Value& value) {
  if (value.isObject()) {
    nlohmann::json object = nlohmann::json::object();
    for (const std::string& key : value.getMemberNames()) object[key] = ToOther(value[key]);
    return object;
  }
  if (value.isArray()) {
    nlohmann::json array = nlohmann::json::array();
    for (const Json::Value& item : value) array.push_back(ToOther(item));
    return array;
  }
  if (value.isString()) return value.asString();
  if (value.isBool()) return value.asBool();
  if (value.type() == Json::realValue) return value.asDouble();
  if (value.type() == Json::uintValue) return value.asUInt64();
  return value.isNull() ? nlohmann::json() : nlohmann::json(value.asInt64());
}

// The other reader refuses numbers that no double holds.
bool HoldsInfinity(const nlohmann::json& value) {
  if (value.is_structured()) return std::any_of(value.begin(), value.end(), HoldsInfinity);
  return value.is_number_float() && std::isinf(value.get<double>());
}

TEST(StrictJsonTest, AcceptsWhatAnotherStrictReaderAccepts) {
  const unsigned seed = Seed();
  std::mt19937 random(seed);
  const auto draw = [&](std::size_t count) {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
  };
  const std::vector<std::string> texts = {
      R"({"a":[1,-2.5e+1,"t\u00e9\n",true,false,null,{},[]],"b":{"a":{"c":0}},"c":0.125,"d":"前\ud83d\ude97"})",
      R"([{"name":"traffic","values":[0,"0xffe5484d",1.0,12E0,-0]},[[[]]],"\"\\\/\b\f\n\r\t"])"};
  const std::vector<std::string> pieces = {"{",
                                           "}",
                                           "[",
                                           "]",
                                           ",",
                                           ":",
                                           "\"",
                                           "\\",
                                           "\\u",
                                           "\\ud800",
                                           "\\udc00",
                                           "0",
                                           "1",
                                           "-",
                                           "+",
                                           ".",
                                           "e",
                                           "E",
                                           " ",
                                           "\n",
                                           "\t",
                                           "\r",
                                           "\0"s,
                                           "\x0B",
                                           "\x1F",
                                           "\x7F",
                                           "\x80",
                                           "\xC3",
                                           "\xE5\x89\x8D",
                                           "\xEF\xBB\xBF",
                                           "/",
                                           "//",
                                           "/**/",
                                           "'",
                                           "null",
                                           "true",
                                           "NaN",
                                           "a",
                                           "f",
                                           "\"a\":1",
                                           "\"b\":1,",
                                           "01",
                                           "[]",
                                           "{}",
                                           ",,",
                                           "1e5"};
  int accepted = 0;
  const int rounds = IsComplete() ? 2'000'000 : 10'000;
  for (int i = 0; i < rounds; ++i) {
    std::string text = texts[draw(texts.size())];
    for (std::size_t changes = 1 + draw(3); changes > 0; --changes) {
      const std::size_t at = draw(text.size() + 1);
      text.replace(at, draw(3), draw(4) == 0 ? "" : pieces[draw(pieces.size())]);
    }
    const std::string repeat = HowToRepeat(seed);
    const std::string error = ErrorOf(text);
    if (!error.empty()) {
      ASSERT_FALSE(OtherReaderAccepts(text)) << text << "\n" << error << ", " << repeat;
      continue;
    }
    ++accepted;
    const nlohmann::json root = ToOther(JsonUtil::ReadStrictly(text));
    if (HoldsInfinity(root)) continue;
    ASSERT_TRUE(OtherReaderAccepts(text)) << text << ", " << repeat;
    ASSERT_EQ(root, nlohmann::json::parse(text)) << text << ", " << repeat;
  }
  EXPECT_GT(accepted, rounds / 20);
}

}  // namespace
}  // namespace kavrix::test
