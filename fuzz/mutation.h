#ifndef KAVRIX_FUZZ_MUTATION_H_
#define KAVRIX_FUZZ_MUTATION_H_

#include <string>

namespace kavrix::fuzz {

// The text with one change that knows what texts of its sort are made of: in mutation.cpp names and payloads,
// with members, values, markers and fields, in config_mutation.cpp configuration files.
std::string Mutated(const std::string& text, unsigned seed);

}  // namespace kavrix::fuzz

#endif  // KAVRIX_FUZZ_MUTATION_H_
