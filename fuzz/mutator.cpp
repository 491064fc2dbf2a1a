// Half of the changes to inputs know what inputs are made of; the others are libFuzzer's own, which know
// nothing of it.

#include <algorithm>
#include <cstdint>

#include "fuzz/mutation.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t max_size);

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t max_size,
                                               unsigned seed) {
  if (seed % 2 == 0) return LLVMFuzzerMutate(data, size, max_size);
  const std::string text = kavrix::fuzz::Mutated(std::string(data, data + size), seed / 2);
  const std::size_t new_size = std::min(text.size(), max_size);
  std::copy_n(text.begin(), new_size, data);
  return new_size;
}
