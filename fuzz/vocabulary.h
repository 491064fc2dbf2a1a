#ifndef KAVRIX_FUZZ_VOCABULARY_H_
#define KAVRIX_FUZZ_VOCABULARY_H_

#include <string>
#include <vector>

namespace kavrix::fuzz {

// The pieces of resource names and configurations.
struct Vocabulary {
  std::vector<std::string> keys;        // of all kinds and of the configuration file
  std::vector<std::string> markers;     // of the kinds in their order, then that of marker names
  std::vector<std::string> separators;  // between fields, and of JSON
  std::vector<std::string> values;      // as JSON text: the ends of the ranges, and every type
};

const Vocabulary& Words();

}  // namespace kavrix::fuzz

#endif  // KAVRIX_FUZZ_VOCABULARY_H_
