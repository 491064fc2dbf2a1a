#ifndef KAVRIX_TESTS_RELIABILITY_ALLOCATION_MALLOC_CONTROL_H_
#define KAVRIX_TESTS_RELIABILITY_ALLOCATION_MALLOC_CONTROL_H_

#include <cstddef>

// Replaces the C library's malloc, and with it operator new and the allocations of JsonCpp's strings. Counts
// allocations and fails them on demand. For programs of one thread.
namespace kavrix::test {

enum class Failing { kOnce, kFromThenOn };

// Lets the n-th allocation from now on fail, by itself or with all later ones; 1 is the next.
void FailAllocation(std::size_t nth, Failing failing);

// Ends the effect of FailAllocation. Returns whether an allocation failed since.
bool EndFailing();

// Keeps allocations from failing and from counting while it lives.
class FailingSuspended {
 public:
  FailingSuspended();
  FailingSuspended(const FailingSuspended&) = delete;
  FailingSuspended& operator=(const FailingSuspended&) = delete;
  ~FailingSuspended();

 private:
  bool was_armed_;
};

// Allocations and bytes not freed, and the most bytes not freed at once since RestartPeak.
std::size_t LiveAllocations();
std::size_t LiveBytes();
std::size_t PeakBytes();
void RestartPeak();

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_RELIABILITY_ALLOCATION_MALLOC_CONTROL_H_
