#ifndef KAVRIX_TESTS_SUPPORT_EXPLAIN_EXPERIMENT_H_
#define KAVRIX_TESTS_SUPPORT_EXPLAIN_EXPERIMENT_H_

#include <cstddef>
#include <string>
#include <vector>

#include "map_resource/bubble_kinds.h"

namespace kavrix::test {

// Replacements of bytes, and those that do not count because they make another sort of name.
struct ExperimentCounts {
  std::size_t replacements = 0;
  std::size_t skipped = 0;
};

// Which bytes and members of the name and which values of the configuration are replaced: the first, and
// every so many.
struct ExperimentSample {
  std::size_t every = 1;
  std::size_t first = 0;

  bool Has(std::size_t number) const { return number % every == first % every; }
};

// Puts the explanation of a name to the test by replacing bytes of the name and values of the configuration:
// what is said to come from them must change with them, and nothing else. Returns what is not so, one
// sentence a fault.
std::vector<std::string> FindExplanationFaults(const std::string& name, EntryPoint entry_point,
                                               ExperimentCounts& counts, ExperimentSample sample = {});

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_EXPLAIN_EXPERIMENT_H_
