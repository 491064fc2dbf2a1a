#ifndef KAVRIX_TESTS_SUPPORT_EFFORT_H_
#define KAVRIX_TESTS_SUPPORT_EFFORT_H_

#include <cstdlib>
#include <random>
#include <string>

// Limits tests that could run for long. Environment variables set the limits, because they also reach tests
// that ctest runs.
namespace kavrix::test {

// Returns whether KAVRIX_TEST_COMPLETE=1 asks for every case instead of a sample.
inline bool IsComplete() {
  const char* const value = std::getenv("KAVRIX_TEST_COMPLETE");
  return value != nullptr && std::string(value) == "1";
}

// Returns the seed that KAVRIX_TEST_SEED=N gives, to repeat a run, else a new one for each run.
inline unsigned Seed() {
  const char* const value = std::getenv("KAVRIX_TEST_SEED");
  return value != nullptr ? static_cast<unsigned>(std::stoul(value)) : std::random_device()();
}

// Returns the hint that a failing test prints.
inline std::string HowToRepeat(unsigned seed) {
  return "repeat with KAVRIX_TEST_SEED=" + std::to_string(seed);
}

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_EFFORT_H_
