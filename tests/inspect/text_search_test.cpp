#include "inspect/text_search.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "tests/support/effort.h"

namespace kavrix::test {
namespace {

TEST(TextSearchTest, WordIsFoundWhereFindFindsIt) {
  const unsigned seed = Seed();
  SCOPED_TRACE(HowToRepeat(seed));
  std::mt19937 random(seed);
  const auto text_of = [&](std::size_t size) {
    std::string text;
    while (text.size() < size) text += static_cast<char>('a' + random() % 2);
    return text;
  };
  for (int i = 0; i < 20'000; ++i) {
    const std::string text = text_of(random() % 80);
    const std::string word = text_of(1 + random() % 6);
    const std::size_t from = random() % (text.size() + 1);
    ASSERT_EQ(inspect::FindWord(text, word, from), text.find(word, from))
        << text << ' ' << word << ' ' << from;
  }
}

TEST(TextSearchTest, BeginningAndEndAreThoseOfTheText) {
  EXPECT_TRUE(inspect::StartsWith("abc", "ab"));
  EXPECT_TRUE(inspect::StartsWith("abc", ""));
  EXPECT_FALSE(inspect::StartsWith("ab", "abc"));
  EXPECT_TRUE(inspect::EndsWith("abc", "bc"));
  EXPECT_FALSE(inspect::EndsWith("bc", "abc"));
}

}  // namespace
}  // namespace kavrix::test
