// Measures the memory that a decode takes for names made to take much, as a multiple of the name's length,
// and limits it. Prints how the time grows with the length, without a limit.

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <iomanip>
#include <iostream>
#include <memory>
#include <vector>

#include "map_resource/map_resource_manager.h"
#include "map_resource/map_resource_transform.h"
#include "tests/reliability/allocation/malloc_control.h"
#include "util/tagged_log.h"

namespace kavrix::test {
namespace {

// The most memory that a decode may take, in multiples of the name's length.
constexpr double kMostMultiple = 256;

// The parts of a long name: `head`, many copies of `piece`, `tail`.
struct Shape {
  const char* what;
  std::string head;
  std::string piece;
  std::string tail;
};

const std::vector<Shape> kShapes = {
    {"one long text", R"({"content":")", "x", R"("}.trafficBubble)"},
    {"escapes in a text", R"({"content":")", R"(\u4e2d)", R"("}.trafficBubble)"},
    {"a text that never ends", R"({"content":")", "x", ".trafficBubble"},
    {"numbers", R"({"k":[0)", ",0", "]}.trafficBubble"},
    {"numbers that never end", R"({"k":[0)", ",0", ".trafficBubble"},
    {"empty texts", R"({"k":[0)", R"(,"")", "]}.trafficBubble"},
    {"empty arrays", R"({"k":[0)", ",[]", "]}.trafficBubble"},
    {"empty objects", R"({"k":[0)", ",{}", "]}.trafficBubble"},
    {"arrays in arrays", R"({"k":[0)", ",[[[[[[[[[[[[[[[[]]]]]]]]]]]]]]]]", "]}.trafficBubble"},
    {"objects of one key", R"({"k":[0)", R"(,{"":0})", "]}.trafficBubble"},
    {"comments", R"({"k":0)", "/**/", "}.trafficBubble"},
    {"errors", R"({"k":)", "#", "}.trafficBubble"},
    {"brackets", R"({"k":)", "[", "}.trafficBubble"},
    {"cameras", R"({"cameras":[0)", ",0", "]}.cameraBubble"},
    {"lights", R"({"light_descriptors":[0)", ",0", "]}@1.multiLightCountdownBubble"},
    {"lines", R"({"second_content":[0)", R"(,"")", "]}.routeExplainBubble"},
    {"separators", "", "_", "@1.hdLongSolidBubble"},
    {"a long field", "", "x", "_0_x_0@1.etaBubble"},
    {"no marker", "", ".x", ""},
    {"almost markers", "", ".trafficBubbl", ""},
};

std::string NameOf(const Shape& shape, std::size_t length) {
  std::string name = MapResourceManager::kavrix_resource_prefix + shape.head;
  name.reserve(length + 100);
  while (name.size() < length) name += shape.piece;
  return name + shape.tail;
}

// Drops the records.
class NoSink : public logging::LogSink {
  void Write(const logging::LogRecord&) override {}
};

struct Cost {
  double multiple = 0;
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
double WorstMultiple(const Shape& shape) {
  double worst = 0;
  for (double length = 100'000; length < 200'000; length *= 1.05) {
    worst = std::max(worst, CostOf(NameOf(shape, static_cast<std::size_t>(length))).multiple);
  }
  return worst;
}

TEST_P(MemoryTest, OfADecodeIsBoundedByAMultipleOfTheName) {
  std::cout << "                          bytes a byte   ms of 1 MB   ms of 2 MB\n";
  for (const Shape& shape : kShapes) {
    const Cost one = CostOf(NameOf(shape, 1'000'000));
    const Cost two = CostOf(NameOf(shape, 2'000'000));
    const double worst = std::max({WorstMultiple(shape), one.multiple, two.multiple});
    EXPECT_LE(worst, kMostMultiple) << shape.what;
    std::cout << std::left << std::setw(26) << shape.what << std::right << std::fixed << std::setprecision(1)
              << std::setw(12) << worst << std::setw(13) << one.milliseconds << std::setw(13)
              << two.milliseconds << '\n';
  }
}

INSTANTIATE_TEST_SUITE_P(Logs, MemoryTest, ::testing::Bool(),
                         [](const auto& test) { return test.param ? "On" : "Off"; });

}  // namespace
}  // namespace kavrix::test
