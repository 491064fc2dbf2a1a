#include "inspect/shortest_real.h"

#include <gtest/gtest.h>

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace kavrix::inspect {
namespace {

float FloatOf(std::uint32_t bits) {
  float value = 0;
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

#ifdef __cpp_lib_to_chars
std::string TextOfToChars(float value) {
  std::array<char, 64> text{};
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), value).ptr};
}

TEST(ShortestRealTest, IsTheTextOfToCharsAroundEveryPowerOfTwo) {
  for (std::uint32_t exponent = 1; exponent < 512; ++exponent) {
    for (const std::uint32_t bits : {(exponent << 23) - 1, exponent << 23, (exponent << 23) + 1}) {
      const float value = FloatOf(bits);
      if (!std::isfinite(value)) continue;
      EXPECT_EQ(ShortestText(value), TextOfToChars(value));
    }
  }
}

TEST(ShortestRealTest, IsTheTextOfToCharsForAnyFloat) {
  std::uint32_t bits = 0;
  for (int i = 0; i < 20'000; ++i, bits += 214'753U) {
    const float value = FloatOf(bits);
    if (!std::isfinite(value)) continue;
    EXPECT_EQ(ShortestText(value), TextOfToChars(value));
  }
}
#endif

TEST(ShortestRealTest, IsShort) {
  EXPECT_EQ(ShortestText(1.5F), "1.5");
  EXPECT_EQ(ShortestText(14), "14");
  EXPECT_EQ(ShortestText(0.1F), "0.1");
  EXPECT_EQ(ShortestText(100000), "1e+05");
  EXPECT_EQ(ShortestText(16777216), "16777216");
  EXPECT_EQ(ShortestText(FloatOf(0x0f800000)), "1.2621775e-29");
}

}  // namespace
}  // namespace kavrix::inspect
