#include "util/text_buffer.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace kavrix::test {
namespace {

TEST(TextBufferTest, HoldsThePiecesInOrder) {
  TextBuffer text(64);
  text += "scene";
  text += ':';
  text.AppendNumber(-3);
  text += std::string_view();
  EXPECT_EQ(text.View(), "scene:-3");
  EXPECT_EQ(text.Take(), "scene:-3");
}

TEST(TextBufferTest, GrowsBeyondItsUsualSize) {
  for (const std::size_t usual_size : {0U, 1U, 7U}) {
    TextBuffer text(usual_size);
    std::string expected;
    for (int i = 0; i < 100; ++i) {
      text += 'x';
      text += "a longer piece";
      text.AppendNumber(i);
      expected += "xa longer piece" + std::to_string(i);
    }
    EXPECT_EQ(text.View(), expected);
  }
}

TEST(TextBufferTest, TakesNulBytes) {
  TextBuffer text(2);
  text += '\0';
  text += std::string_view("a\0b", 3);
  EXPECT_EQ(text.Take(), std::string("\0a\0b", 4));
}

TEST(TextBufferTest, HasRoomForTheLongestNumber) {
  TextBuffer text(0);
  text.AppendNumber(std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(text.View(), "-9223372036854775808");
}

// What was reserved but not advanced over is not part of the text.
TEST(TextBufferTest, KeepsOnlyWhatWasAdvancedOver) {
  TextBuffer text(4);
  text += "ab";
  char* const place = text.Reserve(100);
  for (int i = 0; i < 100; ++i) place[i] = 'c';
  text.Advance(1);
  text += 'd';
  EXPECT_EQ(text.Take(), "abcd");
}

}  // namespace
}  // namespace kavrix::test
