// Measures whole decodes: of each kind, of names of growing length, and of names made to be slow.

#include <json/reader.h>

#include <fstream>
#include <memory>
#include <stdexcept>

#include "bench/cases.h"
#include "bench/names.h"
#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_transform.h"
#include "tests/reference/reference_decoder.h"

#if defined(__GNUC__)
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#endif

namespace kavrix::bench {
namespace {

using Run = std::function<void()>;

template <class Transform>
Run Decode(const std::string& name) {
  return [transform = std::make_shared<Transform>(MakeContext()), name] {
    std::shared_ptr<BubbleDrawDescriptor> out;
    transform->GetBubbleDrawDescriptor(name, out);
    Use(out);
  };
}

template <class Transform>
Run DecodeMarker(const std::string& name) {
  return [transform = std::make_shared<Transform>(MakeContext()), name] {
    std::shared_ptr<BubbleDrawDescriptor> out;
    transform->GetMarkerDrawDescriptor(name, out);
    Use(out);
  };
}

// Returns the first sample name of a kind.
std::string SampleName(const std::string& stem) {
  std::ifstream file(KAVRIX_SAMPLES_DIR "/" + stem + ".txt");
  std::string name;
  if (!std::getline(file, name)) throw std::runtime_error("no sample names of " + stem);
  return name;
}

void AddKinds(std::vector<Case>& cases) {
  for (const char* const stem : kKindStems) {
    const std::string what = stem;
    cases.push_back({"kind/" + what, [what] { return Decode<MapResourceTransform>(SampleName(what)); }});
    cases.push_back(
        {"reference-kind/" + what, [what] { return Decode<reference::ReferenceDecoder>(SampleName(what)); }});
  }
  cases.push_back(
      {"kind/marker_name", [] { return DecodeMarker<MapResourceTransform>(SampleName("marker_name")); }});
  cases.push_back({"reference-kind/marker_name",
                   [] { return DecodeMarker<reference::ReferenceDecoder>(SampleName("marker_name")); }});
}

// Makes a route-explain payload of about `size` bytes, with as many secondary lines of 8 bytes as that takes.
std::string PayloadOfSize(std::size_t size) {
  std::string payload = R"({"scene":1,"mode":0,"uid":"r-17","second_content":["line")";
  while (payload.size() + 2 < size) payload += R"(,"8 bytes.")";
  return payload + "]}";
}

void AddLengths(std::vector<Case>& cases) {
  for (const std::size_t size : {64U, 128U, 256U, 512U, 1024U, 2048U, 4096U}) {
    const std::string payload = PayloadOfSize(size);
    const std::string name = MapResourceManager::kavrix_resource_prefix + payload + ".routeExplainBubble";
    const std::string what = std::to_string(payload.size());
    cases.push_back({"length/" + what, [name] { return Decode<MapResourceTransform>(name); }});
    cases.push_back(
        {"reference-length/" + what, [name] { return Decode<reference::ReferenceDecoder>(name); }});
    cases.push_back({"bare-parse-length/" + what, [payload] {
                       return [payload] {
                         Json::Value root;
                         Json::Reader reader;
                         Use(reader.parse(payload, root, false));
                       };
                     }});
  }
}

// The parts of a long name: `begin`, many copies of `middle`, `end`.
struct LongName {
  const char* what;
  const char* begin;
  const char* middle;
  const char* end;
};

constexpr LongName kLongNames[] = {
    {"one text", R"({"content":")", "x", R"("}.trafficBubble)"},
    {"text of escapes", R"({"content":")", "\\u524d", R"("}.trafficBubble)"},
    {"array of objects", R"({"cameras":[{"type":1,"speed":60})", R"(,{"type":1,"speed":60})",
     "]}.cameraBubble"},
    {"dots, fields", "", ".", "_0_x_0@3.etaBubble"},
    {"dots, JSON", "", ".", ".trafficBubble"},
    {"@", "", "@", ".etaBubble"},
    {"_", "", "_", "@3.etaBubble"},
    {"/**/ before the object", "", "/**/", "{}.trafficBubble"},
    {"/**/ inside the object", R"({"scene":1)", "/**/", "}.trafficBubble"},
    {"brackets, open", R"({"content":)", "[", "}.trafficBubble"},
    {"brackets, closed", R"({"content":[0)", ",[[[[[[[[[[[[[[[[[[[[]]]]]]]]]]]]]]]]]]]]", "]}.trafficBubble"},
    {"the markers' tail", "", "Bubble", ".etaBubble"},
};

std::string MakeLongName(const LongName& parts, std::size_t size) {
  std::string name = MapResourceManager::kavrix_resource_prefix;
  name += parts.begin;
  while (name.size() < size) name += parts.middle;
  return name + parts.end;
}

void AddLinear(std::vector<Case>& cases) {
  for (const LongName& parts : kLongNames) {
    for (const std::size_t megabytes : {1U, 2U}) {
      const std::string id = "linear/" + std::to_string(megabytes) + "/" + parts.what;
      cases.push_back({id, [&parts, megabytes] {
                         return Decode<MapResourceTransform>(MakeLongName(parts, megabytes * 1000000));
                       }});
    }
  }
}

}  // namespace

void AddDecodeCases(std::vector<Case>& cases) {
  AddKinds(cases);
  AddLengths(cases);
  AddLinear(cases);
}

}  // namespace kavrix::bench
