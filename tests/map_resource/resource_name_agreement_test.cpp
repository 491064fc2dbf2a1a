// Compares the search for a name's JSON object and the reading of its direction with the reference.

#include <gtest/gtest.h>

#include <random>

#include "map_resource/map_resource_manager.h"
#include "map_resource/resource_name.h"
#include "tests/reference/fields.h"
#include "tests/reference/self_initialised.h"
#include "tests/support/effort.h"

namespace kavrix::test {
namespace {

class ResourceNameAgreementTest : public ::testing::Test {
 protected:
  std::string TextOf(const std::vector<std::string>& pieces) {
    std::string text;
    for (auto left = random_() % 6; left > 0; --left) text += pieces[random_() % pieces.size()];
    return text;
  }

  const unsigned seed_ = Seed();
  std::mt19937 random_{seed_};
};

TEST_F(ResourceNameAgreementTest, JsonObjectIsTheReferences) {
  int found = 0;
  for (int left = 20'000; left > 0; --left) {
    const std::string name = TextOf(
        {"{", "}", "a", MapResourceManager::kavrix_resource_prefix, "\"a\":1", "@", "}.YawNoticeBubble"});
    const std::string expected = reference::BetweenBraces(name);
    ASSERT_EQ(FindJsonObject(name), expected) << name << '\n' << HowToRepeat(seed_);
    if (!expected.empty()) ++found;
  }
  EXPECT_GT(found, 1000);
}

TEST_F(ResourceNameAgreementTest, DirectionIsTheReferences) {
  constexpr std::int16_t kBefore = 12345;
  int read = 0;
  for (int left = 20'000; left > 0; --left) {
    std::string tail = TextOf(
        {"0", "7", "-", "+", ".", ".nameBubble", "32768", "2147483648", " ", "a", "99999999999999999999"});
    if (left % 2 == 0) tail += ".nameBubble";
    BubbleDrawDescriptor actual;
    BubbleDrawDescriptor expected;
    actual.direction = expected.direction = kBefore;
    ReadDirectionTail(tail, actual);
    reference::ReadDirection(tail, expected);
    ASSERT_EQ(actual.direction, expected.direction) << tail << '\n' << HowToRepeat(seed_);
    if (actual.direction != kBefore) ++read;
  }
  EXPECT_GT(read, 1000);
}

}  // namespace
}  // namespace kavrix::test
