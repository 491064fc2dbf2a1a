#include "config/bubble_style_record.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

#include "config/marker_bubble_config.h"

namespace kavrix::test {
namespace {

using ::testing::Each;
using ::testing::IsEmpty;

TEST(BubbleStyleRecordTest, NewRecordHasAnEmptyNameAndZeros) {
  const BubbleStyleRecord<12> record;
  EXPECT_EQ(record.name, "");
  EXPECT_EQ(record.reserved_1, 0U);
  EXPECT_EQ(record.reserved_2, 0U);
  EXPECT_THAT(record.items, IsEmpty());
  EXPECT_THAT(record.values, Each(0U));
  EXPECT_EQ(record.Float(3), 0.0F);
}

TEST(BubbleStyleRecordTest, ValuesAreNumberedFromOne) {
  BubbleStyleRecord<4> record;
  record.SetWord(1, 11);
  record.SetWord(4, 44);
  EXPECT_EQ(record.values[0], 11U);
  EXPECT_EQ(record.values[3], 44U);
  EXPECT_EQ(record.Word(1), 11U);
  EXPECT_EQ(record.Word(4), 44U);
}

TEST(BubbleStyleRecordTest, NumberOutsideTheRecordThrows) {
  BubbleStyleRecord<4> record;
  for (const std::size_t number : {std::size_t{0}, std::size_t{5}, std::numeric_limits<std::size_t>::max()}) {
    EXPECT_THROW(record.Word(number), std::out_of_range);
    EXPECT_THROW(record.Float(number), std::out_of_range);
    EXPECT_THROW(record.SetWord(number, 1), std::out_of_range);
    EXPECT_THROW(record.SetFloat(number, 1), std::out_of_range);
  }
}

TEST(BubbleStyleRecordTest, WordAndFloatOfACellHaveTheSameBits) {
  BubbleStyleRecord<2> record;
  record.SetFloat(1, 1.0F);
  EXPECT_EQ(record.Word(1), 0x3F800000U);
  record.SetWord(2, 0xC0490FDBU);
  EXPECT_EQ(record.Float(2), -3.14159274F);
}

TEST(BubbleStyleRecordTest, EveryWordKeepsItsBits) {
  BubbleStyleRecord<2> record;
  for (const std::uint32_t word : {0U, 1U, 0x7F800001U, 0xFFFFFFFFU}) {
    record.SetWord(1, word);
    EXPECT_EQ(record.Word(1), word);
  }
}

TEST(BubbleStyleRecordTest, CopiesOwnTheirTextsAndItems) {
  BubbleStyleRecord<2> record;
  record.name = "name";
  record.items = {1, 2};
  const BubbleStyleRecord<2> copy = record;
  record.name[0] = 'x';
  record.items[0] = 9;
  EXPECT_EQ(copy.name, "name");
  EXPECT_EQ(copy.items[0], 1U);
}

TEST(MarkerBubbleConfigTest, HasFourValuesAndAnEmptyName) {
  const MarkerBubbleConfig config;
  EXPECT_EQ(MarkerBubbleConfig::kValueCount, 4U);
  EXPECT_EQ(config.name, "");
  EXPECT_EQ(config.Word(2), 0U);
  EXPECT_EQ(config.Float(3), 0.0F);
}

}  // namespace
}  // namespace kavrix::test
