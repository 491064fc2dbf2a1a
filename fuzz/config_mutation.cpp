#include "fuzz/mutation.h"
#include "tests/support/random_config.h"

namespace kavrix::fuzz {

// Takes the place of mutation.cpp for configuration files. One change in sixteen begins with a new file.
std::string Mutated(const std::string& text, unsigned seed) {
  test::RandomConfig random(seed);
  return random.Changed(seed % 16 == 0 ? random.Valid() : text);
}

}  // namespace kavrix::fuzz
