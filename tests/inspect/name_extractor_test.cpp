#include "inspect/name_extractor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "map_resource/bubble_markers.h"
#include "map_resource/map_resource_manager.h"
#include "tests/support/extract.h"

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

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

}  // namespace
}  // namespace kavrix::test
