// Fails every allocation of a printed descriptor once: the exception reaches the caller, and the stream gets
// nothing.

#include <gtest/gtest.h>

#include <ios>
#include <limits>
#include <new>
#include <streambuf>

#include "descriptors/descriptors.h"
#include "tests/reliability/allocation/malloc_control.h"

namespace kavrix::test {
namespace {

// Accepts any output without allocating.
class CountingBuffer : public std::streambuf {
 public:
  std::streamsize bytes = 0;

 private:
  std::streamsize xsputn(const char*, std::streamsize size) override {
    bytes += size;
    return size;
  }
};

// Prints the descriptor once for each of its allocations and lets that one fail. Returns how many there are.
std::size_t FailEach(const BubbleDrawDescriptor& descriptor, std::ios_base::fmtflags notation) {
  for (std::size_t n = 1;; ++n) {
    CountingBuffer buffer;
    std::ostream stream(&buffer);
    stream.setf(notation, std::ios_base::floatfield);
    const std::size_t live = LiveAllocations();
    bool threw = false;
    FailAllocation(n, Failing::kOnce);
    try {
      WriteAllMembers(stream, descriptor);
    } catch (const std::bad_alloc&) {
      threw = true;
    }
    const bool failed = EndFailing();
    EXPECT_EQ(threw, failed) << "allocation " << n;
    EXPECT_EQ(buffer.bytes == 0, failed) << "allocation " << n;
    EXPECT_EQ(LiveAllocations(), live) << "allocation " << n;
    if (!failed || ::testing::Test::HasFailure()) return n - 1;
  }
}

TEST(DescriptorTextAllocationTest, MemoryThatRunsOutIsNotSwallowed) {
  TrafficDrawDescriptor traffic;
  traffic.style_scale = {std::numeric_limits<float>::max(), std::numeric_limits<float>::denorm_min()};
  EXPECT_GE(FailEach(traffic, std::ios_base::fixed), 1U);
  traffic.content.assign(10'000, '\n');
  EXPECT_GT(FailEach(traffic, std::ios_base::fixed), 1U);
  EXPECT_GE(FailEach(traffic, std::ios_base::fixed | std::ios_base::scientific), 1U);  // hexadecimal floats
}

}  // namespace
}  // namespace kavrix::test
