// Puts the explanations of names to the test, as the tests do with the golden names: what is said to come
// from bytes of the name or from the configuration must change with them, and nothing else.

#include <functional>

#include "fuzz/fuzzing.h"
#include "tests/support/explain_experiment.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kavrix;
  const std::string name(fuzz::AsText(data, size));
  // Many names are better than all experiments with few: most are tried with one or two, through one entry
  // point.
  constexpr std::size_t kEvery = 397;
  const std::size_t hash = std::hash<std::string>()(name);
  const EntryPoint entry_point = hash / kEvery % 2 == 0 ? EntryPoint::kBubble : EntryPoint::kMarker;
  test::ExperimentCounts counts;
  for (const std::string& fault : test::FindExplanationFaults(name, entry_point, counts, {kEvery, hash})) {
    fuzz::Require(false, fault.c_str());
  }
  return 0;
}
