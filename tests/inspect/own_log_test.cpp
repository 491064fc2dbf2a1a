#include "inspect/own_log.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <iterator>
#include <random>

#include "tests/support/effort.h"
#include "tests/support/extract.h"
#include "util/escape.h"

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(OwnLogTest, OwnLogHoldsOneNameARequest) {
  EXPECT_THAT(Extract("12:00 I [Kavrix][main-map]resource_name:" + kPrefix + "{\"content\":\"" + kPrefix +
                      "\"}.trafficBubble " + kPrefix + "x\n"),
              ElementsAre(kPrefix + "{\"content\":\"" + kPrefix + "\"}.trafficBubble"));
}

TEST(OwnLogTest, OtherRecordsOfTheOwnLogHoldNone) {
  for (const std::string& message :
       {" resource_name:" + kPrefix + "1@2.turnBubble", "parse json failed: " + kPrefix + "{.companionBubble",
        "BubbleDrawDescriptor{...}resource_name " + kPrefix + "{}.inDoorEntriesBubble",
        "TrafficDrawDescriptor{content: \"]resource_name:" + kPrefix + "x\"}",
        "resource_name:" + std::string("x ") + kPrefix + "y"}) {
    EXPECT_THAT(Extract("[Kavrix][main-map]" + message + "\n"), IsEmpty()) << message;
  }
}

TEST(OwnLogTest, ContextOfTheOwnLogMayBeEmptyAndHoldABracket) {
  EXPECT_THAT(Extract("[Kavrix][a]b]resource_name:" + kPrefix + "x\n"), ElementsAre(kPrefix + "x"));
  EXPECT_THAT(Extract("[Kavrix][a b]resource_name:" + kPrefix + "x\n"), ElementsAre(kPrefix + "x"));
  EXPECT_THAT(Extract("[Kavrix][]resource_name:" + kPrefix + "x\n"), ElementsAre(kPrefix + "x"));
}

TEST(OwnLogTest, WhatFollowsANameMakesNoOwnLog) {
  EXPECT_THAT(Extract(kPrefix + "1.turnBubble asked by [Kavrix][main-map]\n"),
              ElementsAre(kPrefix + "1.turnBubble"));
}

TEST(OwnLogTest, RepeatOfTheEtaParserDoesNotCount) {
  EXPECT_THAT(Extract("I " + kOwn + kEtaName + "\nI " + kOwn + kEtaName + "\n"), ElementsAre(kEtaName));
  // Asked for twice.
  EXPECT_THAT(Extract("I " + kOwn + kEtaName + "\nI " + kOwn + kEtaName + "\nI " + kOwn + kEtaName + "\nI " +
                      kOwn + kEtaName + "\n"),
              ElementsAre(kEtaName, kEtaName));
  EXPECT_THAT(Extract("I " + kOwn + kEtaName + "\n[Kavrix][main-map]DestNameEtaDrawDescriptor{}\nI " + kOwn +
                      kEtaName + "\n"),
              ElementsAre(kEtaName, kEtaName));
}

TEST(OwnLogTest, FunctionOrTagInFrontOfTheMessageTellsWhoWroteIt) {
  const std::string request = "[GetBubbleDrawDescriptor@19] " + kOwn + kEtaName + "\n";
  EXPECT_THAT(Extract(request + request), ElementsAre(kEtaName, kEtaName));
  for (const std::string who : {"[ParseEtaBubbleResourceName@67] ", "KavrixMapLayerMgr_DestNameEta "}) {
    const std::string repeat = who + kOwn + kEtaName + "\n";
    EXPECT_THAT(Extract(request + request + repeat + repeat), ElementsAre(kEtaName, kEtaName)) << who;
    EXPECT_THAT(Extract(repeat), IsEmpty()) << who;
  }
}

TEST(OwnLogTest, NamesOfOtherKindsCountEachTime) {
  const std::string line = kOwn + kPrefix + "{}.trafficBubble\n";
  EXPECT_EQ(Extract(line + line + line).size(), 3U);
}

TEST(OwnLogTest, RejectionOfANameCountsOnlyWithoutTheRecordBeforeIt) {
  const std::string request = kOwn + kPrefix + "foo\n";
  const std::string rejection = kOwn + kPrefix + "foo, it is a not valid bubble.\n";
  EXPECT_THAT(Extract(request + rejection), ElementsAre(kPrefix + "foo"));
  EXPECT_THAT(Extract(rejection), ElementsAre(kPrefix + "foo"));
  EXPECT_THAT(Extract(rejection + rejection), ElementsAre(kPrefix + "foo", kPrefix + "foo"));
  EXPECT_THAT(Extract(request + "other\n" + rejection), ElementsAre(kPrefix + "foo", kPrefix + "foo"));
  EXPECT_THAT(Extract(request + rejection + request + rejection),
              ElementsAre(kPrefix + "foo", kPrefix + "foo"));
}

TEST(OwnLogTest, RejectionOfANameThatEndsBeforeTheLineDoesNotCountAgain) {
  for (const std::string rest : {"a.markerxyz", "a kavrix://resource/b", R"({"a":1}x@3.markers)"}) {
    const std::string request = kOwn + kPrefix + rest;
    EXPECT_EQ(Extract(request + "\n" + request + ", it is a not valid bubble.\n").size(), 1U) << rest;
  }
}

TEST(OwnLogTest, RepeatsAreKnownFromOneCallToTheNext) {
  NameExtractor extractor(LogLines::kText);
  std::vector<ExtractedName> names;
  std::vector<LineError> errors;
  for (int i = 0; i < 4; ++i) extractor.Extract(kOwn + kEtaName + "\n", names, errors);
  EXPECT_EQ(names.size(), 2U);
}

TEST(OwnLogTest, EscapesOfTheOwnLogAreUndone) {
  const std::string head =
      "routine KavrixMapLayerMgr GetBubbleDrawDescriptor map_resource_transform.cpp:19 " + kOwn;
  EXPECT_THAT(
      Extract(head + kPrefix + R"({"content":"say \\"hi\\"\n\xff\u0085\x2 \q\\\\"}.trafficBubble)" + "\n"),
      ElementsAre(kPrefix + "{\"content\":\"say \\\"hi\\\"\n\xFF\xC2\x85\\x2 \\q\\\\\"}.trafficBubble"));
  // A line that only looks alike keeps its backslashes.
  EXPECT_THAT(Extract("routine " + kOwn + kPrefix + R"({"content":"a\\"}.trafficBubble)" + "\n"),
              ElementsAre(kPrefix + R"({"content":"a\\"}.trafficBubble)"));
}

TEST(OwnLogTest, EscapesOfTheOwnLogAreTheOppositeOfThoseItWrites) {
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
