#include "inspect/name_extractor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <iterator>
#include <random>

#include "inspect/own_log.h"
#include "map_resource/bubble_markers.h"
#include "map_resource/map_resource_manager.h"
#include "tests/support/effort.h"
#include "util/escape.h"

namespace kavrix::test {
namespace {

using inspect::ExtractedName;
using inspect::LineError;
using inspect::LogLines;
using inspect::NameExtractor;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kPrefix = "kavrix://resource/";

struct Extracted {
  std::vector<std::string> names;   // each as "LINE:BYTE NAME"
  std::vector<std::string> errors;  // each as "LINE:BYTE EXPECTED"
};

Extracted ExtractWithPlaces(const std::string& text, LogLines lines = LogLines::kCountedText) {
  NameExtractor extractor(lines);
  std::vector<ExtractedName> names;
  std::vector<LineError> errors;
  extractor.Extract(text, names, errors);
  Extracted extracted;
  for (const ExtractedName& name : names) {
    extracted.names.push_back(std::to_string(name.line) + ":" + std::to_string(name.byte) + " " + name.name);
  }
  for (const LineError& line : errors) {
    extracted.errors.push_back(std::to_string(line.line) + ":" + std::to_string(line.error.at) + " " +
                               line.error.expected);
  }
  return extracted;
}

std::vector<std::string> Extract(const std::string& text, LogLines lines = LogLines::kText) {
  NameExtractor extractor(lines);
  std::vector<ExtractedName> names;
  std::vector<LineError> errors;
  extractor.Extract(text, names, errors);
  std::vector<std::string> texts;
  for (const ExtractedName& name : names) texts.push_back(name.name);
  return texts;
}

// What is found in a line that begins with the prefix, without it.
std::string FirstAfterPrefix(const std::string& rest) {
  const std::vector<std::string> names = Extract("x " + kPrefix + rest);
  return names.empty() ? "nothing" : names[0].substr(kPrefix.size());
}

TEST(NameExtractorTest, TextWithoutThePrefixHoldsNoName) {
  EXPECT_THAT(Extract(""), IsEmpty());
  EXPECT_THAT(Extract("one\ntwo {\"mode\":0}.trafficBubble\nkavrix://resourc/x\n"), IsEmpty());
  EXPECT_THAT(Extract("http://resource/{\"mode\":0}.trafficBubble\n"), IsEmpty());
}

TEST(NameExtractorTest, NameWithAnObjectEndsWithTheMarkerThatFollowsIt) {
  EXPECT_EQ(FirstAfterPrefix(R"({"mode":0}.trafficBubble and more.turnBubble)"),
            R"({"mode":0}.trafficBubble)");
  EXPECT_EQ(FirstAfterPrefix(R"({"mode":0}@-7.companionBubble.)"), R"({"mode":0}@-7.companionBubble)");
  EXPECT_EQ(FirstAfterPrefix(R"({"mode":0}@+7.companionBubble")"), R"({"mode":0}@+7.companionBubble)");
}

TEST(NameExtractorTest, EveryMarkerEndsAName) {
  for (const std::string_view marker : kBubbleMarkers) {
    const std::string name = "{}" + std::string(marker);
    EXPECT_EQ(FirstAfterPrefix(name + "x"), name);
  }
}

TEST(NameExtractorTest, MarkerNamesEndToo) {
  EXPECT_EQ(FirstAfterPrefix(R"({"name":"a"}.marker, next)"), R"({"name":"a"}.marker)");
  EXPECT_EQ(FirstAfterPrefix(R"({"name":"a"}.markerBubble, next)"), R"({"name":"a"}.markerBubble)");
  EXPECT_EQ(FirstAfterPrefix(R"({"name":.marker, next)"), R"({"name":.marker)");
}

TEST(NameExtractorTest, MarkersBracesAndPrefixesInTextsOfAnObjectAreOnlyText) {
  const std::string name =
      R"({"content":"} @1.etaBubble kavrix://resource/{}.turnBubble {","mode":0}.trafficBubble)";
  EXPECT_THAT(Extract("a " + kPrefix + name + " b"), ElementsAre(kPrefix + name));
}

TEST(NameExtractorTest, ObjectIsReadAsTheDecoderReadsIt) {
  for (const std::string object : {
           R"({"a":"\"}.turnBubble"})",             // an escape
           R"({"a":1/*}.turnBubble*/})",            // a comment
           R"({"a":01,"b":"}.turnBubble"})",        // a number that only JsonCpp takes
           R"({"\u0061":"}.turnBubble","b":[{}]})"  // an escape in a key
       }) {
    EXPECT_EQ(FirstAfterPrefix(object + ".trafficBubble}.turnBubble"), object + ".trafficBubble");
  }
}

TEST(NameExtractorTest, BlanksMayStandBeforeTheObject) {
  EXPECT_EQ(FirstAfterPrefix(" \t{\"a\":\"@1.etaBubble\"}.trafficBubble x"),
            " \t{\"a\":\"@1.etaBubble\"}.trafficBubble");
}

TEST(NameExtractorTest, ObjectWithoutAMarkerAtOnceIsLikeAnyOtherName) {
  EXPECT_EQ(FirstAfterPrefix(R"({"a":1} .trafficBubble x)"), R"({"a":1} .trafficBubble)");
  EXPECT_EQ(FirstAfterPrefix(R"({"a":1}@.companionBubble x)"), R"({"a":1}@.companionBubble)");
  EXPECT_EQ(FirstAfterPrefix(R"({"a":1} and so on)"), R"({"a":1} and so on)");
}

TEST(NameExtractorTest, FieldsEndWithTheFirstMarkerAfterADirection) {
  EXPECT_EQ(FirstAfterPrefix("Home|12 min_0_x_0@3.etaBubble, 1@2.labelBubble"),
            "Home|12 min_0_x_0@3.etaBubble");
  EXPECT_EQ(FirstAfterPrefix("a.trafficBubble_0@-3.labelBubble and"), "a.trafficBubble_0@-3.labelBubble");
}

TEST(NameExtractorTest, WithoutADirectionTheLastMarkerEndsTheName) {
  EXPECT_EQ(FirstAfterPrefix("1.turnBubble then 2.turnBubble ends"), "1.turnBubble then 2.turnBubble");
  EXPECT_EQ(FirstAfterPrefix("a@.etaBubble x"), "a@.etaBubble");
  EXPECT_EQ(FirstAfterPrefix("a@+.etaBubble x"), "a@+.etaBubble");
}

TEST(NameExtractorTest, WithoutAMarkerTheNameEndsWithTheLine) {
  EXPECT_THAT(Extract(kPrefix + "half a na\nnext line.turnBubble\n"), ElementsAre(kPrefix + "half a na"));
  EXPECT_THAT(Extract(kPrefix + "{\"content\":\"ab\r\n"), ElementsAre(kPrefix + "{\"content\":\"ab"));
  EXPECT_THAT(Extract(kPrefix), ElementsAre(kPrefix));
}

TEST(NameExtractorTest, WhatTheDispatcherSaysOfANameIsNotPartOfIt) {
  EXPECT_EQ(FirstAfterPrefix("foo, it is a not valid bubble."), "foo");
  EXPECT_EQ(FirstAfterPrefix(", it is a not valid bubble."), "");
  EXPECT_EQ(FirstAfterPrefix("foo, it is a not valid bubble"), "foo, it is a not valid bubble");
}

TEST(NameExtractorTest, NameLiesBeforeTheNextPrefix) {
  EXPECT_THAT(Extract(kPrefix + "{\"a\":1 " + kPrefix + "1@2.labelBubble"),
              ElementsAre(kPrefix + "{\"a\":1 ", kPrefix + "1@2.labelBubble"));
  EXPECT_THAT(Extract(kPrefix + kPrefix + "x"), ElementsAre(kPrefix, kPrefix + "x"));
}

TEST(NameExtractorTest, LineCanHoldManyNames) {
  const std::string json = kPrefix + R"({"mode":0}.trafficBubble)";
  const std::string fields = kPrefix + "a_0_x_0@3.etaBubble";
  EXPECT_THAT(Extract("[" + json + "," + fields + ";" + json + json + "]"),
              ElementsAre(json, fields, json, json));
}

TEST(NameExtractorTest, NulsAndBytesThatAreNotUtf8AreBytesLikeOthers) {
  using std::string_literals::operator""s;
  const std::string name = kPrefix + "{\"content\":\"a\0\xFF\xFE\"}.trafficBubble"s;
  EXPECT_THAT(Extract("\0\xFF"s + name + "\0"s), ElementsAre(name));
}

TEST(NameExtractorTest, PlacesAreLinesFromOneAndBytesFromZero) {
  EXPECT_THAT(
      ExtractWithPlaces("a\n\n\xC3\xA4 " + kPrefix + "{}.turnBubble " + kPrefix + "b\r\n" + kPrefix).names,
      ElementsAre("3:3 " + kPrefix + "{}.turnBubble", "3:35 " + kPrefix + "b", "4:0 " + kPrefix));
}

TEST(NameExtractorTest, PlacesGoOnFromOneCallToTheNext) {
  NameExtractor extractor(LogLines::kCountedText);
  std::vector<ExtractedName> names;
  std::vector<LineError> errors;
  for (const std::string& lines :
       {"a\n" + kPrefix + "1\nb\n", std::string("c\n"), "d\ne " + kPrefix + "2\n"}) {
    extractor.Extract(lines, names, errors);
  }
  ASSERT_EQ(names.size(), 2U);
  EXPECT_EQ(names[0].line, 2U);
  EXPECT_EQ(names[1].line, 6U);
  EXPECT_EQ(names[1].byte, 2U);
}

TEST(NameExtractorTest, AnotherPrefixIsSoughtOnDemand) {
  const char* const earlier = MapResourceManager::kavrix_resource_prefix;
  MapResourceManager::kavrix_resource_prefix = "app://";
  const std::vector<std::string> names = Extract("kavrix://resource/1.turnBubble app://2.turnBubble\n");
  MapResourceManager::kavrix_resource_prefix = earlier;
  EXPECT_THAT(names, ElementsAre("app://2.turnBubble"));
}

// The log of the library.

TEST(NameExtractorTest, OwnLogHoldsOneNameARequest) {
  EXPECT_THAT(Extract("12:00 I [Kavrix][main-map]resource_name:" + kPrefix + "{\"content\":\"" + kPrefix +
                      "\"}.trafficBubble " + kPrefix + "x\n"),
              ElementsAre(kPrefix + "{\"content\":\"" + kPrefix + "\"}.trafficBubble"));
}

TEST(NameExtractorTest, OtherRecordsOfTheOwnLogHoldNone) {
  for (const std::string& message :
       {" resource_name:" + kPrefix + "1@2.turnBubble", "parse json failed: " + kPrefix + "{.companionBubble",
        "BubbleDrawDescriptor{...}resource_name " + kPrefix + "{}.inDoorEntriesBubble",
        "TrafficDrawDescriptor{content: \"]resource_name:" + kPrefix + "x\"}",
        "resource_name:" + std::string("x ") + kPrefix + "y"}) {
    EXPECT_THAT(Extract("[Kavrix][main-map]" + message + "\n"), IsEmpty()) << message;
  }
}

TEST(NameExtractorTest, ContextOfTheOwnLogMayBeEmptyAndHoldABracket) {
  EXPECT_THAT(Extract("[Kavrix][a]b]resource_name:" + kPrefix + "x\n"), ElementsAre(kPrefix + "x"));
  EXPECT_THAT(Extract("[Kavrix][a b]resource_name:" + kPrefix + "x\n"), ElementsAre(kPrefix + "x"));
  EXPECT_THAT(Extract("[Kavrix][]resource_name:" + kPrefix + "x\n"), ElementsAre(kPrefix + "x"));
}

TEST(NameExtractorTest, WhatFollowsANameMakesNoOwnLog) {
  EXPECT_THAT(Extract(kPrefix + "1.turnBubble asked by [Kavrix][main-map]\n"),
              ElementsAre(kPrefix + "1.turnBubble"));
}

const std::string kEtaName = kPrefix + "Home_0_x_0@3.etaBubble";
const std::string kOwn = "[Kavrix][main-map]resource_name:";

TEST(NameExtractorTest, RepeatOfTheEtaParserDoesNotCount) {
  EXPECT_THAT(Extract("I " + kOwn + kEtaName + "\nI " + kOwn + kEtaName + "\n"), ElementsAre(kEtaName));
  // Asked for twice.
  EXPECT_THAT(Extract("I " + kOwn + kEtaName + "\nI " + kOwn + kEtaName + "\nI " + kOwn + kEtaName + "\nI " +
                      kOwn + kEtaName + "\n"),
              ElementsAre(kEtaName, kEtaName));
  EXPECT_THAT(Extract("I " + kOwn + kEtaName + "\n[Kavrix][main-map]DestNameEtaDrawDescriptor{}\nI " + kOwn +
                      kEtaName + "\n"),
              ElementsAre(kEtaName, kEtaName));
}

TEST(NameExtractorTest, FunctionOrTagInFrontOfTheMessageTellsWhoWroteIt) {
  const std::string request = "[GetBubbleDrawDescriptor@19] " + kOwn + kEtaName + "\n";
  EXPECT_THAT(Extract(request + request), ElementsAre(kEtaName, kEtaName));
  for (const std::string who : {"[ParseEtaBubbleResourceName@67] ", "KavrixMapLayerMgr_DestNameEta "}) {
    const std::string repeat = who + kOwn + kEtaName + "\n";
    EXPECT_THAT(Extract(request + request + repeat + repeat), ElementsAre(kEtaName, kEtaName)) << who;
    EXPECT_THAT(Extract(repeat), IsEmpty()) << who;
  }
}

TEST(NameExtractorTest, NamesOfOtherKindsCountEachTime) {
  const std::string line = kOwn + kPrefix + "{}.trafficBubble\n";
  EXPECT_EQ(Extract(line + line + line).size(), 3U);
}

TEST(NameExtractorTest, RejectionOfANameCountsOnlyWithoutTheRecordBeforeIt) {
  const std::string request = kOwn + kPrefix + "foo\n";
  const std::string rejection = kOwn + kPrefix + "foo, it is a not valid bubble.\n";
  EXPECT_THAT(Extract(request + rejection), ElementsAre(kPrefix + "foo"));
  EXPECT_THAT(Extract(rejection), ElementsAre(kPrefix + "foo"));
  EXPECT_THAT(Extract(rejection + rejection), ElementsAre(kPrefix + "foo", kPrefix + "foo"));
  EXPECT_THAT(Extract(request + "other\n" + rejection), ElementsAre(kPrefix + "foo", kPrefix + "foo"));
  EXPECT_THAT(Extract(request + rejection + request + rejection),
              ElementsAre(kPrefix + "foo", kPrefix + "foo"));
}

TEST(NameExtractorTest, RejectionOfANameThatEndsBeforeTheLineDoesNotCountAgain) {
  for (const std::string rest : {"a.markerxyz", "a kavrix://resource/b", R"({"a":1}x@3.markers)"}) {
    const std::string request = kOwn + kPrefix + rest;
    EXPECT_EQ(Extract(request + "\n" + request + ", it is a not valid bubble.\n").size(), 1U) << rest;
  }
}

TEST(NameExtractorTest, RepeatsAreKnownFromOneCallToTheNext) {
  NameExtractor extractor(LogLines::kText);
  std::vector<ExtractedName> names;
  std::vector<LineError> errors;
  for (int i = 0; i < 4; ++i) extractor.Extract(kOwn + kEtaName + "\n", names, errors);
  EXPECT_EQ(names.size(), 2U);
}

TEST(NameExtractorTest, EscapesOfTheOwnLogAreUndone) {
  const std::string head =
      "routine KavrixMapLayerMgr GetBubbleDrawDescriptor map_resource_transform.cpp:19 " + kOwn;
  EXPECT_THAT(
      Extract(head + kPrefix + R"({"content":"say \\"hi\\"\n\xff\u0085\x2 \q\\\\"}.trafficBubble)" + "\n"),
      ElementsAre(kPrefix + "{\"content\":\"say \\\"hi\\\"\n\xFF\xC2\x85\\x2 \\q\\\\\"}.trafficBubble"));
  // A line that only looks alike keeps its backslashes.
  EXPECT_THAT(Extract("routine " + kOwn + kPrefix + R"({"content":"a\\"}.trafficBubble)" + "\n"),
              ElementsAre(kPrefix + R"({"content":"a\\"}.trafficBubble)"));
}

// Lines that are JSON.

TEST(NameExtractorTest, NamesAreSoughtInTheDecodedTextsOfJson) {
  const std::string name = kPrefix + R"({"content":"a\"b"}.trafficBubble)";
  const std::string line =
      R"({"level":1,"msg":"got kavrix:\/\/resource/{\"content\":\"a\\\"b\"}\u002etrafficBubble ok"})";
  const Extracted extracted = ExtractWithPlaces("{}\n" + line + "\n", LogLines::kJson);
  EXPECT_THAT(extracted.names, ElementsAre("2:22 " + name));
  EXPECT_THAT(extracted.errors, IsEmpty());
}

TEST(NameExtractorTest, KeysAndNestedTextsOfJsonAreTextsToo) {
  const std::string line =
      R"([{"kavrix://resource/1.turnBubble":{"a":["kavrix://resource/2.turnBubble"]}}, 17])";
  EXPECT_THAT(ExtractWithPlaces(line, LogLines::kJson).names,
              ElementsAre("1:3 " + kPrefix + "1.turnBubble", "1:42 " + kPrefix + "2.turnBubble"));
}

TEST(NameExtractorTest, TextOfSeveralLinesHoldsNamesAsThoseLinesWould) {
  const std::string line =
      R"("x kavrix://resource/half\r\nkavrix://resource/1.turnBubble\n[Kavrix][m]resource_name:kavrix://resource/2")";
  EXPECT_THAT(
      ExtractWithPlaces(line, LogLines::kJson).names,
      ElementsAre("1:3 " + kPrefix + "half", "1:29 " + kPrefix + "1.turnBubble", "1:86 " + kPrefix + "2"));
}

TEST(NameExtractorTest, LineThatIsNoJsonIsToldOfAndSearchedAllTheSame) {
  const Extracted extracted = ExtractWithPlaces(
      "{\"a\":1}\nhello\n\n  \n{\"msg\":\"kavrix://resource/half\n{\"a\":1} "
      "x\n{\"a\":\"kavrix://resource/\\q.turnBubble\"}\n",
      LogLines::kJson);
  EXPECT_THAT(extracted.names, ElementsAre("5:8 " + kPrefix + "half", "7:6 " + kPrefix + "\\q.turnBubble"));
  EXPECT_THAT(extracted.errors,
              ElementsAre("2:0 a value", "5:30 the closing quote of the string", "6:8 the end of the line",
                          "7:25 one of \" \\ / b f n r t u after the backslash"));
}

TEST(NameExtractorTest, LineOfJsonIsOneValue) {
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

TEST(NameExtractorTest, LineThatComesInPiecesIsCountedOnce) {
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

TEST(NameExtractorTest, RepeatsInOneTextOfJsonDoNotCount) {
  EXPECT_THAT(Extract("{\"m\":\"" + kOwn + kEtaName + "\\n" + kOwn + kEtaName + "\\n" + kOwn + kPrefix +
                          "x\\n" + kOwn + kPrefix + "x, it is a not valid bubble.\"}\n",
                      LogLines::kJson),
              ElementsAre(kEtaName, kPrefix + "x"));
}

TEST(NameExtractorTest, EtaRepeatInJsonLinesDoesNotCount) {
  const std::string line = "{\"msg\":\"" + kOwn + kEtaName + "\"}\n";
  EXPECT_THAT(Extract(line + line + line, LogLines::kJson), ElementsAre(kEtaName, kEtaName));
}

// Reading to the end of the line from each prefix would take hours.
TEST(NameExtractorTest, LongHostileLinesTakeTimeInProportion) {
  const std::string braces(20, '}');
  for (const std::string& unit :
       {kPrefix + "{/*", kPrefix + "{\"", kPrefix + "{\"a\":\"", kPrefix + "{\"\\u0061\":[1,", kPrefix + "{'",
        kPrefix + "{\"a\":01,\"b\":\"", kPrefix + "{\"a\" \"", kPrefix + "{x" + braces,
        kPrefix + "{}@1" + braces}) {
    std::string line;
    for (int i = 0; i < 20'000; ++i) line += unit;
    EXPECT_EQ(Extract(line + "}.trafficBubble\n").size(), 20'000U) << unit;
  }
}

TEST(NameExtractorTest, ManyNamesInOneTextOfJsonTakeTimeInProportion) {
  std::string text;
  for (int i = 0; i < 50'000; ++i) text += kPrefix + "x@1.etaBubble " + std::string(100, ' ');
  EXPECT_EQ(Extract("\"" + text + "\"\n", LogLines::kJson).size(), 50'000U);
  EXPECT_EQ(Extract("\"" + text + "\\n" + text + "\"\n", LogLines::kJson).size(), 100'000U);
}

TEST(NameExtractorTest, EscapesOfTheOwnLogAreTheOppositeOfThoseItWrites) {
  std::mt19937 random(Seed());
  for (int i = 0; i < 2000; ++i) {
    std::string text;
    for (std::size_t size = random() % 40; text.size() < size;) {
      constexpr std::string_view kPieces[] = {"\\",   "n",        "x0",           "u00", "\n",   "\x1B",
                                              "\xFF", "\xC2\x85", "\xE2\x80\xAE", "a",   "\xE4", "\""};
      text += kPieces[random() % std::size(kPieces)];
    }
    std::string escaped;
    AppendEscaped(escaped, text);
    EXPECT_EQ(inspect::WithoutEscapes(escaped), text) << escaped;
  }
}

}  // namespace
}  // namespace kavrix::test
