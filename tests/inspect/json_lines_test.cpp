#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/extract.h"

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(JsonLinesTest, NamesAreSoughtInTheDecodedTextsOfJson) {
  const std::string name = kPrefix + R"({"content":"a\"b"}.trafficBubble)";
  const std::string line =
      R"({"level":1,"msg":"got kavrix:\/\/resource/{\"content\":\"a\\\"b\"}\u002etrafficBubble ok"})";
  const Extracted extracted = ExtractWithPlaces("{}\n" + line + "\n", LogLines::kJson);
  EXPECT_THAT(extracted.names, ElementsAre("2:22 " + name));
  EXPECT_THAT(extracted.errors, IsEmpty());
}

TEST(JsonLinesTest, KeysAndNestedTextsOfJsonAreTextsToo) {
  const std::string line =
      R"([{"kavrix://resource/1.turnBubble":{"a":["kavrix://resource/2.turnBubble"]}}, 17])";
  EXPECT_THAT(ExtractWithPlaces(line, LogLines::kJson).names,
              ElementsAre("1:3 " + kPrefix + "1.turnBubble", "1:42 " + kPrefix + "2.turnBubble"));
}

TEST(JsonLinesTest, TextOfSeveralLinesHoldsNamesAsThoseLinesWould) {
  const std::string line =
      R"("x kavrix://resource/half\r\nkavrix://resource/1.turnBubble\n[Kavrix][m]resource_name:kavrix://resource/2")";
  EXPECT_THAT(
      ExtractWithPlaces(line, LogLines::kJson).names,
      ElementsAre("1:3 " + kPrefix + "half", "1:29 " + kPrefix + "1.turnBubble", "1:86 " + kPrefix + "2"));
}

TEST(JsonLinesTest, LineThatIsNoJsonIsToldOfAndSearchedAllTheSame) {
  const Extracted extracted = ExtractWithPlaces(
      "{\"a\":1}\nhello\n\n  \n{\"msg\":\"kavrix://resource/half\n{\"a\":1} "
      "x\n{\"a\":\"kavrix://resource/\\q.turnBubble\"}\n",
      LogLines::kJson);
  EXPECT_THAT(extracted.names, ElementsAre("5:8 " + kPrefix + "half", "7:6 " + kPrefix + "\\q.turnBubble"));
  EXPECT_THAT(extracted.errors,
              ElementsAre("2:0 a value", "5:30 the closing quote of the string", "6:8 the end of the line",
                          "7:25 one of \" \\ / b f n r t u after the backslash"));
}

TEST(JsonLinesTest, LineOfJsonIsOneValue) {
  for (const std::string line :
       {"1", " [1, {}] ", "\"a\"", "null", "{}", " {\"a\":1700000000000000000} ", "", "-0.5e3"}) {
    EXPECT_THAT(ExtractWithPlaces(line, LogLines::kJson).errors, IsEmpty()) << line;
  }
  const std::vector<std::pair<std::string, std::string>> errors = {
      {"1, 2", "1:0 one value in the line"}, {"1,\"a\":2", "1:5 ',' or ']'"},
      {"{} {}", "1:3 the end of the line"},  {"{\"a\":1}, \"b\":{}", "1:7 the end of the line"},
      {"[1] 2", "1:4 ',' or ']'"},           {"x", "1:0 a value"}};
  for (const auto& [line, error] : errors) {
    EXPECT_THAT(ExtractWithPlaces(line, LogLines::kJson).errors, ElementsAre(error)) << line;
  }
}

TEST(JsonLinesTest, LineThatComesInPiecesIsCountedOnce) {
  for (const LogLines lines : {LogLines::kCountedText, LogLines::kJson}) {
    NameExtractor extractor(lines);
    std::vector<ExtractedName> names;
    std::vector<LineError> errors;
    const std::vector<std::string> pieces = {"{}\n[\"abc\",", "\"def\",",
                                             "\" " + kPrefix + "1.turnBubble\"]\n",
                                             "\"" + kPrefix + "2.turnBubble\""};
    for (const std::string& piece : pieces) extractor.Extract(piece, names, errors);
    ASSERT_EQ(names.size(), 2U);
    EXPECT_EQ(names[0].line, 2U);
    EXPECT_EQ(names[0].byte, 15U);
    EXPECT_EQ(names[1].line, 3U);
    EXPECT_EQ(names[1].byte, 1U);
  }
}

TEST(JsonLinesTest, RepeatsInOneTextOfJsonDoNotCount) {
  EXPECT_THAT(Extract("{\"m\":\"" + kOwn + kEtaName + "\\n" + kOwn + kEtaName + "\\n" + kOwn + kPrefix +
                          "x\\n" + kOwn + kPrefix + "x, it is a not valid bubble.\"}\n",
                      LogLines::kJson),
              ElementsAre(kEtaName, kPrefix + "x"));
}

TEST(JsonLinesTest, EtaRepeatInJsonLinesDoesNotCount) {
  const std::string line = "{\"msg\":\"" + kOwn + kEtaName + "\"}\n";
  EXPECT_THAT(Extract(line + line + line, LogLines::kJson), ElementsAre(kEtaName, kEtaName));
}

TEST(JsonLinesTest, ManyNamesInOneTextOfJsonTakeTimeInProportion) {
  std::string text;
  for (int i = 0; i < 50'000; ++i) text += kPrefix + "x@1.etaBubble " + std::string(100, ' ');
  EXPECT_EQ(Extract("\"" + text + "\"\n", LogLines::kJson).size(), 50'000U);
  EXPECT_EQ(Extract("\"" + text + "\\n" + text + "\"\n", LogLines::kJson).size(), 100'000U);
}

}  // namespace
}  // namespace kavrix::test
