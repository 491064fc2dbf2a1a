#ifndef KAVRIX_TESTS_SUPPORT_MIXED_NAMES_H_
#define KAVRIX_TESTS_SUPPORT_MIXED_NAMES_H_

#include <random>
#include <string>
#include <vector>

namespace kavrix::test {

// The names of all golden files.
std::vector<std::string> AllGoldenNames();

// Golden and sample names, each changed in one to four places as the fuzzers change them.
class MixedNames {
 public:
  explicit MixedNames(unsigned seed);

  std::string Next();

 private:
  std::string WithOtherBytes(std::string name);

  std::mt19937 random_;
  std::vector<std::string> names_;
};

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_MIXED_NAMES_H_
