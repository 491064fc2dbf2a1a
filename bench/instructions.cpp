// Runs one case a number of times, for callgrind to count: the difference of two runs is what the repetitions cost.
//
//   kavrix-instructions CASE REPETITIONS

#include <json/reader.h>

#include <cstdlib>
#include <functional>
#include <iostream>
#include <map>

#include "bench/names.h"
#include "map_resource/bubble_markers.h"
#include "map_resource/map_resource_transform.h"
#include "util/tagged_log.h"

namespace kavrix::bench {
namespace {

using Case = std::function<void()>;

Case DecodeCase(const Name& name) {
  const auto transform = std::make_shared<MapResourceTransform>(MakeContext());
  return [transform, &name] {
    std::shared_ptr<BubbleDrawDescriptor> out;
    transform->GetBubbleDrawDescriptor(name.name, out);
  };
}

Case ParseCase(const Name& name) {
  return [&name] {
    Json::Value root;
    Json::Reader reader;
    reader.parse(name.payload, root, false);
  };
}

Case FindCase(const std::string& name) {
  return [name] {
    volatile bool found = FindBubbleKind(name).has_value();
    (void)found;
  };
}

std::string Repeated(const std::string& text, std::size_t size) {
  std::string repeated;
  while (repeated.size() < size) repeated += text;
  return repeated;
}

// What a log statement needs from the function around it.
struct LogCase {
  std::shared_ptr<KavrixContext> context_ = MakeContext();
  void operator()() const {
    KAVRIX_LOG(LogTagKavrixMapLayerMgr_BubbleTraffic, logging::LogLevel::kRoutine, "never evaluated");
  }
};

const std::map<std::string, std::function<Case()>>& Cases() {
  static const std::map<std::string, std::function<Case()>> cases = {
      {"decode-P1", [] { return DecodeCase(P1()); }},
      {"decode-P2", [] { return DecodeCase(P2()); }},
      {"decode-P3", [] { return DecodeCase(P3()); }},
      {"decode-P4", [] { return DecodeCase(P4()); }},
      {"parse-P1", [] { return ParseCase(P1()); }},
      {"parse-P2", [] { return ParseCase(P2()); }},
      {"parse-P3", [] { return ParseCase(P3()); }},
      {"find-200-plain", [] { return FindCase(Repeated("abcdefgh", 183) + ".LaneChangeBubble"); }},
      {"find-2K-dots", [] { return FindCase(Repeated(".", 2048 - 17) + ".LaneChangeBubble"); }},
      {"find-2K-dot-letter", [] { return FindCase(Repeated(".l", 2048 - 17) + ".LaneChangeBubble"); }},
      {"find-2K-dot-two-letters", [] { return FindCase(Repeated(".tr", 2048 - 17) + ".LaneChangeBubble"); }},
      {"find-2K-near-misses", [] { return FindCase(Repeated(".LaneChangeBubbl", 2048 - 17) + ".LaneChangeBubble"); }},
      {"find-2K-dot-other", [] { return FindCase(Repeated(".x1", 2048 - 17) + ".LaneChangeBubble"); }},
      {"find-P1", [] { return FindCase(P1().name); }},
      {"snapshot", [] { return Case([context = MakeContext()] { context->GetBubbleLayerConfigInLock(); }); }},
      {"log-off", [] { return Case(LogCase()); }},
  };
  return cases;
}

int Run(int argc, char** argv) {
  const auto found = argc == 3 ? Cases().find(argv[1]) : Cases().end();
  if (found == Cases().end()) {
    for (const auto& entry : Cases()) std::cout << entry.first << '\n';
    return argc == 1 ? 0 : 2;
  }
  const Case run = found->second();
  for (int i = std::atoi(argv[2]); i > 0; --i) run();
  return 0;
}

}  // namespace
}  // namespace kavrix::bench

int main(int argc, char** argv) { return kavrix::bench::Run(argc, argv); }
