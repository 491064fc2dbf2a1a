#ifndef KAVRIX_FUZZ_FUZZING_H_
#define KAVRIX_FUZZ_FUZZING_H_

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

namespace kavrix::fuzz {

// A finding: stops the fuzzer, which keeps the input.
inline void Require(bool holds, const char* claim) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", claim);
  std::abort();
}

inline std::string_view AsText(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// A copy on the heap without a byte to spare, so that reading past its end is a finding.
class ExactCopy {
 public:
  explicit ExactCopy(std::string_view text) : size_(text.size()), bytes_(new char[text.size()]) {
    std::copy(text.begin(), text.end(), bytes_.get());
  }
  std::string_view text() const { return {bytes_.get(), size_}; }

 private:
  std::size_t size_;
  std::unique_ptr<char[]> bytes_;
};

}  // namespace kavrix::fuzz

#endif  // KAVRIX_FUZZ_FUZZING_H_
