// Puts the explanations of names to the test, as the tests do with the golden names: what is said to come
// from bytes of the name or from the configuration must change with them, and nothing else.

#include <functional>

#include "fuzz/fuzzing.h"
#include "tests/support/explain_experiment.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kavrix;
  const std::string name(fuzz::AsText(data, size));
  constexpr std::size_t kEvery = 11;  // so that many names are tried, rather than all bytes of few
  const test::ExperimentSample sample = {kEvery, std::hash<std::string>()(name)};
  for (const EntryPoint entry_point : {EntryPoint::kBubble, EntryPoint::kMarker}) {
    test::ExperimentCounts counts;
    for (const std::string& fault : test::FindExplanationFaults(name, entry_point, counts, sample)) {
      fuzz::Require(false, fault.c_str());
    }
  }
  return 0;
}
