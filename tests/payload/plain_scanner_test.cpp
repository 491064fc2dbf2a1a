#include "payload/plain_scanner.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;

bool IsPlain(const std::string& text) {
  NodeList nodes;
  return ScanPlain(text, nodes);
}

std::string Repeated(const std::string& text, std::size_t times) {
  std::string repeated;
  for (std::size_t i = 0; i < times; ++i) repeated += text;
  return repeated;
}

TEST(PlainScannerTest, ScalarsThatEveryReaderReadsAlikeArePlain) {
  for (const std::string value : {"0",
                                  "-0",
                                  "7",
                                  "-12",
                                  "999999999999999999",
                                  "-999999999999999999",
                                  "1.0",
                                  "-1.5",
                                  "0.5",
                                  "1e5",
                                  "1E-5",
                                  "1.5e+99",
                                  "0.000000000000000001",
                                  "true",
                                  "false",
                                  "null",
                                  R"("")",
                                  R"("x")",
                                  R"("\"\\\/\b\f\n\r\t")",
                                  R"("\u0041\u0000\uFFFF\ud7ff\ue000")",
                                  R"("\ud83d\ude00")",
                                  R"("/**/ // ' # {}[],:")",
                                  "\"\x01\xff\xc3\n\"",
                                  "[]",
                                  "{}"}) {
    EXPECT_TRUE(IsPlain(R"({"k":)" + value + "}")) << value;
    EXPECT_TRUE(IsPlain("{\"k\":[" + value + "," + value + "]}")) << value;
    EXPECT_TRUE(IsPlain(" \t\n\r{ \"k\"\t:\n" + value + "\r} what follows")) << value;
  }
}

TEST(PlainScannerTest, ScalarsThatReadersDoNotReadAlikeAreNot) {
  for (const std::string value : {"01",          "-01",
                                  "00",          "-",
                                  "+1",          "1000000000000000000",
                                  "5.",          ".5",
                                  "-.5",         "1e",
                                  "1e+",         "1e+-5",
                                  "1e-+5",       "1e100",
                                  "1e-100",      "0.0000000000000000001",
                                  "1.e5",        "1.5.2",
                                  "NaN",         "Infinity",
                                  "0x1",         "tru",
                                  "truex",       "nul",
                                  "True",        "'x'",
                                  R"("\x")",     R"("\'")",
                                  R"("\u12")",   R"("\u12g4")",
                                  R"("\ud83d")", R"("\ud83d\u0041")",
                                  R"("\ude00")", R"("\ud83dx")",
                                  "/**/1",       "1/**/",
                                  "//\n1",       "1 2",
                                  "x",           ""}) {
    EXPECT_FALSE(IsPlain(R"({"k":)" + value + "}")) << value;
    EXPECT_FALSE(IsPlain("{\"k\":[" + value + "]}") && !value.empty()) << value;
  }
}

TEST(PlainScannerTest, StructureIsThatOfOneObject) {
  for (const std::string text :
       {"{}", R"({"a":1,"a":2})", R"({"":1})", R"({"a":{"b":[{},[]]}})", "{}}", "{}x{"}) {
    EXPECT_TRUE(IsPlain(text)) << text;
  }
  for (const std::string text : {"",
                                 " ",
                                 "}",
                                 "{",
                                 "[1]",
                                 "5",
                                 "\"x\"",
                                 "{,}",
                                 R"({"a"})",
                                 R"({"a":})",
                                 R"({"a":1,})",
                                 R"({"":1,})",
                                 R"({"a" 1})",
                                 R"({"a"=1})",
                                 R"({"a":1 "b":2})",
                                 R"({"a":1;"b":2})",
                                 R"({a:1})",
                                 R"({'a':1})",
                                 R"({"\u0061":1})",
                                 R"({"a":[1,]})",
                                 R"({"a":[,1]})",
                                 R"({"a":[1 2]})",
                                 R"({"a":[1})",
                                 R"({"a":{"b":1])",
                                 R"({"a":{"b":1})",
                                 R"({"a":"})",
                                 R"({"a":"x\"})",
                                 R"({"a)",
                                 "\xEF\xBB\xBF{}",
                                 "/**/{}"}) {
    EXPECT_FALSE(IsPlain(text)) << text;
  }
}

TEST(PlainScannerTest, ValuesInsideAThousandArraysAndObjectsArePlainAndNoDeeper) {
  for (const std::string opening : {"[", R"({"k":)"}) {
    const std::string closing = opening == "[" ? "]" : "}";
    const auto nested = [&](std::size_t count, const std::string& innermost) {
      return R"({"k":)" + Repeated(opening, count) + innermost + Repeated(closing, count) + "}";
    };
    EXPECT_TRUE(IsPlain(nested(998, "1")));
    EXPECT_TRUE(IsPlain(nested(998, "{}")));
    EXPECT_TRUE(IsPlain(nested(998, "[]")));
    EXPECT_FALSE(IsPlain(nested(999, "1")));
    EXPECT_FALSE(IsPlain(nested(999, "[]")));
  }
}

TEST(PlainScannerTest, NodesKnowTheBytesOfTheirKeysAndValues) {
  const std::string text = R"( {"a" : "x\n", "b":[ -12 ,{"c":1.5}], "d":true} )";
  NodeList nodes;
  ASSERT_TRUE(ScanPlain(text, nodes));
  std::vector<std::string> keys;
  std::vector<std::string> bytes;
  for (std::uint32_t i = 0; i < nodes.size(); ++i) {
    keys.emplace_back(nodes[i].Key());
    bytes.emplace_back(nodes[i].Bytes());
  }
  EXPECT_THAT(keys, ElementsAre("", "a", "b", "", "", "c", "d"));
  EXPECT_THAT(bytes, ElementsAre(R"({"a" : "x\n", "b":[ -12 ,{"c":1.5}], "d":true})", R"(x\n)",
                                 R"([ -12 ,{"c":1.5}])", "-12", R"({"c":1.5})", "1.5", "true"));
  EXPECT_EQ(nodes[1].Key().data(), text.data() + 3);
  EXPECT_EQ(nodes[3].number, -12);
  EXPECT_TRUE(nodes[1].has_escapes);
  EXPECT_EQ(nodes[6].previous, 2U);
  EXPECT_EQ(nodes[2].last, 4U);
}

TEST(PlainScannerTest, PayloadsOfManyValuesAreListedWhole) {
  std::string text = R"({"k":[)";
  for (int i = 0; i < 1000; ++i) text += std::to_string(i) + ",";
  text += "1000]}";
  NodeList nodes;
  ASSERT_TRUE(ScanPlain(text, nodes));
  ASSERT_EQ(nodes.size(), 1003U);
  for (std::uint32_t i = 0; i <= 1000; ++i) EXPECT_EQ(nodes[i + 2].number, static_cast<std::int32_t>(i));
}

TEST(PlainScannerTest, IntegersThatFitAnIntAreTold) {
  const auto type_of = [](const std::string& number) {
    NodeList nodes;
    EXPECT_TRUE(ScanPlain(R"({"k":)" + number + "}", nodes)) << number;
    return nodes[1].type;
  };
  for (const std::string number : {"2147483647", "-2147483648", "0", "-0"}) {
    EXPECT_EQ(type_of(number), NodeType::kInteger) << number;
  }
  for (const std::string number : {"2147483648", "-2147483649", "4294967296", "1.0", "1e1"}) {
    EXPECT_EQ(type_of(number), NodeType::kOther) << number;
  }
}

TEST(AssignTextTest, EscapesAreDecodedToUtf8) {
  const auto text_of = [](const std::string& contents) {
    const std::string payload = "{\"k\":\"" + contents + "\"}";
    NodeList nodes;
    EXPECT_TRUE(ScanPlain(payload, nodes)) << contents;
    std::string text = "replaced";
    AssignText(nodes[1], text);
    return text;
  };
  EXPECT_EQ(text_of(""), "");
  EXPECT_EQ(text_of("no escapes"), "no escapes");
  EXPECT_EQ(text_of(R"(\"\\\/\b\f\n\r\t)"), "\"\\/\b\f\n\r\t");
  EXPECT_EQ(text_of(R"(a\u0041\u00e9\u524d\uFFfFz)"), "aAé前\xEF\xBF\xBFz");
  EXPECT_EQ(text_of(R"(\u007f\u0080\u07ff\u0800)"), "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80");
  EXPECT_EQ(text_of(R"(\ud83d\ude00\ud800\udc00\udbff\udfff)"), "😀\xF0\x90\x80\x80\xF4\x8F\xBF\xBF");
  EXPECT_EQ(text_of(R"(a\u0000b)"), std::string("a\0b", 3));
}

}  // namespace
}  // namespace kavrix::test
