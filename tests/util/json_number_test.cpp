#include "util/json_number.h"

#include <gtest/gtest.h>
#include <locale.h>  // newlocale

#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

#include "tests/support/effort.h"

namespace kavrix::test {
namespace {

// Tests the nearest float where it matters: between the largest float and the first value that is too large.
TEST(NearestFloatTest, TheMiddleAboveTheLargestFloatDecides) {
  constexpr float kMax = std::numeric_limits<float>::max();
  constexpr float kInfinity = std::numeric_limits<float>::infinity();
  EXPECT_EQ(JsonUtil::NearestFloat("3.4028235e+38"), kMax);
  EXPECT_EQ(JsonUtil::NearestFloat("3.4028235677973366e+38"), kMax);  // the nearest double is the middle
  EXPECT_EQ(JsonUtil::NearestFloat("340282356779733661637539395458142568447"), kMax);
  EXPECT_EQ(JsonUtil::NearestFloat("340282356779733661637539395458142568447.999"), kMax);
  EXPECT_EQ(JsonUtil::NearestFloat("340282356779733661637539395458142568448"), kInfinity);
  EXPECT_EQ(JsonUtil::NearestFloat("-340282356779733661637539395458142568448"), -kInfinity);
  EXPECT_EQ(JsonUtil::NearestFloat("-3.4028235e38"), -kMax);
}

// The value is rounded once to a float, not first to a double.
TEST(NearestFloatTest, NumbersNextToAMiddleAreRoundedOnce) {
  EXPECT_EQ(JsonUtil::NearestFloat("1.00000005960464477539062500000000000000001"),
            1.00000011920928955078125F);
  EXPECT_EQ(JsonUtil::NearestFloat("1.00000005960464477539062500000000000000000"), 1.0F);
  EXPECT_EQ(JsonUtil::NearestFloat("9007199791611905"), 9007200328482816.0F);
}

TEST(NearestFloatTest, ExponentsAndDigitsMayBeOfAnyLength) {
  const std::string zeros(100'000, '0');
  EXPECT_EQ(JsonUtil::NearestFloat("15" + zeros + "e-100001"), 1.5F);
  EXPECT_EQ(JsonUtil::NearestFloat("0." + zeros + "15e100001"), 1.5F);
  EXPECT_EQ(JsonUtil::NearestFloat("1." + zeros + "E0"), 1.0F);
  EXPECT_EQ(JsonUtil::NearestFloat("1" + zeros), std::numeric_limits<float>::infinity());
  EXPECT_EQ(JsonUtil::NearestFloat("1e" + std::string(100'000, '9')), std::numeric_limits<float>::infinity());
  EXPECT_EQ(JsonUtil::NearestFloat("1e-" + std::string(100'000, '9')), 0.0F);
  EXPECT_EQ(JsonUtil::NearestFloat("0.0e" + std::string(100'000, '9')), 0.0F);
  EXPECT_EQ(JsonUtil::NearestFloat("1e+0" + zeros + "1"), 10.0F);
}

TEST(NearestFloatTest, SmallestFloatsAndSignsOfZero) {
  EXPECT_EQ(JsonUtil::NearestFloat("1.4e-45"), std::numeric_limits<float>::denorm_min());
  EXPECT_EQ(JsonUtil::NearestFloat("7e-46"), 0.0F);
  EXPECT_TRUE(std::signbit(JsonUtil::NearestFloat("-0.0")));
  EXPECT_FALSE(std::signbit(JsonUtil::NearestFloat("0.0")));
}

TEST(NearestFloatTest, IsWhatTheCLibraryReadsWithTheDecimalPoint) {
  const locale_t classic = newlocale(LC_ALL_MASK, "C", nullptr);
  const unsigned seed = Seed();
  std::mt19937 random(seed);
  const auto draw = [&](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
  for (int i = 0; i < 20'000; ++i) {
    std::string number = std::to_string(1 + draw(8)) + ".";
    for (int digits = 1 + draw(20); digits > 0; --digits) number += static_cast<char>('0' + draw(9));
    if (draw(3) > 0) number += "e" + std::to_string(draw(90) - 48);
    const float expected = strtof_l(number.c_str(), nullptr, classic);
    EXPECT_EQ(JsonUtil::NearestFloat(number), expected) << number << ", " << HowToRepeat(seed);
    EXPECT_EQ(JsonUtil::NearestDouble(number), strtod_l(number.c_str(), nullptr, classic)) << number;
  }
  freelocale(classic);
}

}  // namespace
}  // namespace kavrix::test
