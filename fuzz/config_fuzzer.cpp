// Fuzzes configuration files: the reference must refuse what the loader refuses, and read the same from every
// other file.

#include "fuzz/fuzzing.h"
#include "tests/support/config_agreement.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kavrix;
  // On the heap, where AddressSanitizer also sees reads past the end of a short string.
  const auto text = std::make_unique<const std::string>(fuzz::AsText(data, size));
  const std::string difference = test::DisagreementOnConfig(*text);
  fuzz::Require(difference.empty(), difference.c_str());
  return 0;
}
