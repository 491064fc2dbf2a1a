// Measures the memory that a decode takes for names made to take much, by the byte of the name, and limits
// it, also as a multiple of what a typical name takes. Prints how the time grows with the length, without a
// limit.

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <iomanip>
#include <iostream>
#include <memory>
#include <vector>

#include "map_resource/map_resource_transform.h"
#include "tests/reliability/allocation/malloc_control.h"
#include "tests/support/hostile_shapes.h"
#include "util/tagged_log.h"

namespace kavrix::test {
namespace {

// The most memory that a decode may take, in bytes for each byte of the name.
constexpr double kMostBytes = 256;

// The same as a multiple of what a typical name takes.
constexpr double kMostTypicals = 64;

// Drops the records.
class NoSink : public logging::LogSink {
  void Write(const logging::LogRecord&) override {}
};

struct Cost {
  double bytes = 0;  // at most, for each byte of the name
  double milliseconds = 0;
};

Cost CostOf(const std::string& name) {
  static MapResourceTransform transform(std::make_shared<KavrixContext>("ctx"));
  RestartPeak();
  const std::size_t before = LiveBytes();
  const std::clock_t start = std::clock();
  {
    std::shared_ptr<BubbleDrawDescriptor> out;
    transform.GetBubbleDrawDescriptor(name, out);
  }
  const double milliseconds = 1e3 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
  EXPECT_LE(LiveBytes(), before + 4'096);  // what the libraries keep from their first use
  return {static_cast<double>(PeakBytes() - before) / static_cast<double>(name.size()), milliseconds};
}

class MemoryTest : public ::testing::TestWithParam<bool> {
 protected:
  MemoryTest() {
    if (GetParam())
      logging::SetLoggerInstance(0, {std::make_shared<NoSink>(), logging::LogLevel::kRoutine, {}});
  }
  ~MemoryTest() override { logging::SetLoggerInstance(0, {}); }
};

// Tries lengths over one doubling, because memory that grows by doubling peaks somewhere within it.
double WorstBytes(const HostileShape& shape) {
  double worst = 0;
  for (double length = 100'000; length < 200'000; length *= 1.05) {
    worst = std::max(worst, CostOf(NameOf(shape, static_cast<std::size_t>(length))).bytes);
  }
  return worst;
}

TEST_P(MemoryTest, OfADecodeIsBoundedByTheLengthOfTheNameAndByWhatATypicalNameTakes) {
  CostOf(kTypicalName);  // what a first decode prepares is not counted
  const double typical = CostOf(kTypicalName).bytes;
  std::cout << "                          bytes a byte   ms of 1 MB   ms of 2 MB\n"
            << "typical: " << typical << " bytes a byte\n";
  for (const HostileShape& shape : HostileShapes()) {
    const Cost one = CostOf(NameOf(shape, 1'000'000));
    const Cost two = CostOf(NameOf(shape, 2'000'000));
    const double worst = std::max({WorstBytes(shape), one.bytes, two.bytes});
    EXPECT_LE(worst, kMostBytes) << shape.what;
    EXPECT_LE(worst, kMostTypicals * typical) << shape.what;
    std::cout << std::left << std::setw(26) << shape.what << std::right << std::fixed << std::setprecision(1)
              << std::setw(12) << worst << std::setw(13) << one.milliseconds << std::setw(13)
              << two.milliseconds << '\n';
  }
}

INSTANTIATE_TEST_SUITE_P(Logs, MemoryTest, ::testing::Bool(),
                         [](const auto& test) { return test.param ? "On" : "Off"; });

}  // namespace
}  // namespace kavrix::test
