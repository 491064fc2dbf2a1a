#ifndef KAVRIX_FUZZ_MUTATION_H_
#define KAVRIX_FUZZ_MUTATION_H_

#include <string>

namespace kavrix::fuzz {

// The text with one change that knows what names and payloads are made of: members, values, markers, fields.
std::string Mutated(const std::string& text, unsigned seed);

}  // namespace kavrix::fuzz

#endif  // KAVRIX_FUZZ_MUTATION_H_
