// Fuzzes whole names, through both entry points.

#include "fuzz/decoding.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kavrix;
  using namespace kavrix::fuzz;
  CheckName(AsText(data, size), EntryPoint::kBubble);
  CheckName(AsText(data, size), EntryPoint::kMarker);
  return 0;
}
