#ifndef KAVRIX_TESTS_RELIABILITY_ALLOCATION_MALLOC_CONTROL_H_
#define KAVRIX_TESTS_RELIABILITY_ALLOCATION_MALLOC_CONTROL_H_

#include <cstddef>

// Stands in front of the C library's malloc, and so of operator new and of what JsonCpp stores its texts
// with: counts, and fails on demand. For programs of one thread.
namespace kavrix::test {

enum class Failing { kOnce, kFromThenOn };

// Lets the n-th allocation from now on fail, the next being the first.
void FailAllocation(std::size_t nth, Failing failing);

// Ends that. Returns whether an allocation failed since.
bool EndFailing();

// While one lives, no allocation fails and none counts towards the n-th.
class FailingSuspended {
 public:
  FailingSuspended();
  FailingSuspended(const FailingSuspended&) = delete;
  FailingSuspended& operator=(const FailingSuspended&) = delete;
  ~FailingSuspended();

 private:
  bool was_armed_;
};

// What is allocated and not freed, and the most bytes that were so at once since RestartPeak.
std::size_t LiveAllocations();
std::size_t LiveBytes();
std::size_t PeakBytes();
void RestartPeak();

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_RELIABILITY_ALLOCATION_MALLOC_CONTROL_H_
