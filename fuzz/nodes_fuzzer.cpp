// Fuzzes the reading of payloads: the whole input is one, compared with JsonCpp value by value.

#include "fuzz/fuzzing.h"
#include "tests/support/payload_agreement.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kavrix;
  const fuzz::ExactCopy payload(fuzz::AsText(data, size));
  const std::string difference = test::DisagreementWithJsonCpp(payload.text());
  fuzz::Require(difference.empty(), difference.c_str());
  return 0;
}
