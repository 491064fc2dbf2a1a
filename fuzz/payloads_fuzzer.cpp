// Fuzzes payloads: the first byte of the input picks the marker, the rest comes between prefix and marker.

#include "fuzz/decoding.h"
#include "fuzz/vocabulary.h"
#include "map_resource/map_resource_manager.h"
#include "map_resource/resource_name.h"
#include "payload/json_tree.h"

namespace kavrix::fuzz {
namespace {

void CheckParse(std::string_view payload) {
  Json::Value alone;
  const bool parses = ParseTree(ExactCopy(payload).text(), alone);
  Json::Value inside;
  const std::string longer = std::string(payload) + "\"}]*/";
  const bool parses_inside = ParseTree(std::string_view(longer).substr(0, payload.size()), inside);
  Require(parses == parses_inside, "what follows a payload does not change whether it parses");
  if (parses) Require(alone == inside, "what follows a payload is not read");
}

}  // namespace
}  // namespace kavrix::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kavrix;
  if (size == 0) return -1;
  const std::vector<std::string>& markers = fuzz::Words().markers;
  const std::string& marker = markers[*data % markers.size()];
  const std::string_view payload = fuzz::AsText(data + 1, size - 1);
  fuzz::CheckParse(payload);
  const std::string name = MapResourceManager::kavrix_resource_prefix + std::string(payload) + marker;
  fuzz::CheckName(name, marker == kMarkerNameTail ? EntryPoint::kMarker : EntryPoint::kBubble);
  return 0;
}
