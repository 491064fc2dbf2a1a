#ifndef KAVRIX_TESTS_SUPPORT_SAMPLE_NAMES_H_
#define KAVRIX_TESTS_SUPPORT_SAMPLE_NAMES_H_

#include <string>
#include <vector>

namespace kavrix::test {

struct SampleName {
  std::string stem;  // "traffic_bubble"
  bool is_marker;    // goes to the second entry point
  std::string name;
};

// Returns the names in samples/, of every kind.
std::vector<SampleName> SampleNames();

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_SAMPLE_NAMES_H_
