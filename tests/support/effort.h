#ifndef KAVRIX_TESTS_SUPPORT_EFFORT_H_
#define KAVRIX_TESTS_SUPPORT_EFFORT_H_

#include <cstdlib>
#include <random>
#include <string>

// How much a test that could go on for long does. Set by the environment, which reaches tests that ctest runs
// too.
namespace kavrix::test {

// KAVRIX_TEST_COMPLETE=1: every case instead of a sample of them.
inline bool IsComplete() {
  const char* const value = std::getenv("KAVRIX_TEST_COMPLETE");
  return value != nullptr && std::string(value) == "1";
}

// KAVRIX_TEST_SEED=N repeats what a run with that seed drew; else each run draws its own.
inline unsigned Seed() {
  const char* const value = std::getenv("KAVRIX_TEST_SEED");
  return value != nullptr ? static_cast<unsigned>(std::stoul(value)) : std::random_device()();
}

// What a failing test prints with its message.
inline std::string HowToRepeat(unsigned seed) {
  return "repeat with KAVRIX_TEST_SEED=" + std::to_string(seed);
}

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_EFFORT_H_
