#include "map_resource/resource_name.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "config/bubble_style_record.h"
#include "map_resource/map_resource_manager.h"

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;

// Sets another prefix for one test.
class ResourceNameTest : public ::testing::Test {
 protected:
  static void UsePrefix(const char* prefix) { MapResourceManager::kavrix_resource_prefix = prefix; }
  ~ResourceNameTest() override { UsePrefix(default_prefix_); }
  const char* const default_prefix_ = MapResourceManager::kavrix_resource_prefix;
};

TEST_F(ResourceNameTest, PrefixIsTheClientsAndHasADefault) {
  EXPECT_STREQ(default_prefix_, "kavrix://resource/");
}

TEST_F(ResourceNameTest, PrefixAndMarkerAreCutOff) {
  EXPECT_EQ(StripPrefixAndMarker("kavrix://resource/{}.turnBubble", ".turnBubble"), "{}");
  EXPECT_EQ(StripPrefixAndMarker("kavrix://resource/.turnBubble", ".turnBubble"), "");
}

TEST_F(ResourceNameTest, NeitherEndIsCompared) {
  EXPECT_EQ(StripPrefixAndMarker("123456789012345678{}abcdefghijk", ".turnBubble"), "{}");
  EXPECT_EQ(StripPrefix("123456789012345678{}.turnBubble"), "{}.turnBubble");
}

TEST_F(ResourceNameTest, TextAfterTheMarkerMovesTheCut) {
  EXPECT_EQ(StripPrefixAndMarker("kavrix://resource/{}.turnBubble?v=1", ".turnBubble"), "{}.tur");
}

TEST_F(ResourceNameTest, NameTooShortForBothIsLeftWholeAfterThePrefix) {
  EXPECT_EQ(StripPrefixAndMarker("kavrix://resource/{}", ".turnBubble"), "{}");
  EXPECT_EQ(StripPrefixAndMarker("kavrix://resource/0123456789", ".turnBubble"), "0123456789");
  EXPECT_EQ(StripPrefixAndMarker("kavrix://resource/01234567890", ".turnBubble"), "");
  EXPECT_EQ(StripPrefixAndMarker("kavrix://resource/", ".turnBubble"), "");
}

TEST_F(ResourceNameTest, NameShorterThanThePrefixThrows) {
  EXPECT_THROW(StripPrefixAndMarker("kavrix://resource", ".turnBubble"), std::out_of_range);
  EXPECT_THROW(StripPrefixAndMarker("", ".turnBubble"), std::out_of_range);
  EXPECT_THROW(StripPrefix("kavrix://resource"), std::out_of_range);
  EXPECT_EQ(StripPrefix("kavrix://resource/"), "");
}

TEST_F(ResourceNameTest, PrefixIsMeasuredAtEveryCall) {
  UsePrefix("p:");
  EXPECT_EQ(StripPrefix("p:a.turnBubble"), "a.turnBubble");
  EXPECT_EQ(StripPrefixAndMarker("p:a.turnBubble", ".turnBubble"), "a");
  UsePrefix("");
  EXPECT_EQ(StripPrefix("p:a"), "p:a");
  EXPECT_EQ(StripPrefixAndMarker("a.turnBubble", ".turnBubble"), "a");
}

TEST_F(ResourceNameTest, PublishShowsANewDescriptorAtOnce) {
  std::shared_ptr<BubbleDrawDescriptor> out;
  const auto first = Publish<BubbleDrawDescriptor>(out);
  EXPECT_EQ(out, first);
  EXPECT_EQ(out.use_count(), 2);
  const auto second = Publish<BubbleDrawDescriptor>(out);
  EXPECT_EQ(out, second);
  EXPECT_NE(first, second);
}

TEST_F(ResourceNameTest, SelfInitialisedDescriptorIsPublishedAfterItsInitialisation) {
  struct Initialised : BubbleDrawDescriptor {
    void InitWithJson(const std::string& name) {
      if (name == "throw") throw std::runtime_error("cannot");
      content = name;
    }
  };
  std::shared_ptr<BubbleDrawDescriptor> out;
  PublishInitialised<Initialised>("whole name", out);
  EXPECT_EQ(out->content, "whole name");
  const auto earlier = out;
  EXPECT_THROW(PublishInitialised<Initialised>("throw", out), std::runtime_error);
  EXPECT_EQ(out, earlier);
}

std::int16_t DirectionOf(std::string_view tail) {
  BubbleDrawDescriptor descriptor;
  descriptor.direction = 9;
  ReadDirectionTail(tail, descriptor);
  return descriptor.direction;
}

TEST_F(ResourceNameTest, DirectionTailIsAnIntegerADotAndAnyWord) {
  EXPECT_EQ(DirectionOf("2.nameBubble"), 2);
  EXPECT_EQ(DirectionOf("-2."), -2);
  EXPECT_EQ(DirectionOf("2.anything@_else"), 2);
}

TEST_F(ResourceNameTest, DirectionTailKeepsTheLow16Bits) {
  EXPECT_EQ(DirectionOf("70000.nameBubble"), 4464);
  EXPECT_EQ(DirectionOf("32768.nameBubble"), -32768);
}

TEST_F(ResourceNameTest, DirectionTailOfAnotherShapeLeavesTheDirectionAlone) {
  for (const char* const tail : {"", "2", "nameBubble", ".nameBubble", "2a.nameBubble", " 2.nameBubble",
                                 "2.5.nameBubble", "2.nameBubble.", "2147483648.nameBubble"}) {
    EXPECT_EQ(DirectionOf(tail), 9) << tail;
  }
}

TEST_F(ResourceNameTest, JsonObjectReachesFromTheFirstBraceToTheLast) {
  EXPECT_EQ(FindJsonObject(R"(kavrix://resource/{"a":{}}.YawNoticeBubble)"), R"({"a":{}})");
  EXPECT_EQ(FindJsonObject("{}"), "{}");
  EXPECT_EQ(FindJsonObject("x{y}z}w"), "{y}z}");
}

TEST_F(ResourceNameTest, BracesOfThePrefixDoNotCount) {
  UsePrefix("{p}/");
  EXPECT_EQ(FindJsonObject("{p}/{\"a\":1}.YawNoticeBubble"), "{\"a\":1}");
}

TEST_F(ResourceNameTest, NameWithoutBracesInOrderHoldsNoJsonObject) {
  for (const char* const name :
       {"", "a", "{", "}", "}{", "x{", "x}", "}x{", "kavrix://resource/.YawNoticeBubble"}) {
    EXPECT_EQ(FindJsonObject(name), "") << name;
  }
}

TEST_F(ResourceNameTest, CommonStyleIsTheNameValueTwoAndValueThreeTwice) {
  BubbleStyleRecord<4> record;
  record.name = "style";
  record.SetWord(2, 0xFFAA0001U);
  record.SetFloat(3, 1.25F);
  BubbleDrawDescriptor descriptor;
  ApplyCommonStyle(record, descriptor);
  EXPECT_EQ(descriptor.style_name, "style");
  EXPECT_EQ(descriptor.style_word, 0xFFAA0001U);
  EXPECT_THAT(descriptor.style_scale, ElementsAre(1.25F, 1.25F));
  EXPECT_EQ(record.name, "style");
}

TEST_F(ResourceNameTest, RecordWithAnEmptyNameGivesAnEmptyStyleName) {
  BubbleDrawDescriptor descriptor;
  descriptor.style_name = "earlier";
  ApplyCommonStyle(BubbleStyleRecord<4>(), descriptor);
  EXPECT_EQ(descriptor.style_name, "");
}

}  // namespace
}  // namespace kavrix::test
