// Measures the stages of a decode one by one.

#include <memory>

#include "bench/cases.h"
#include "bench/key_lists.h"
#include "bench/names.h"
#include "descriptors/descriptors.h"
#include "key_list/key_reader.h"
#include "map_resource/bubble_markers.h"
#include "map_resource/map_resource_transform.h"
#include "map_resource/resource_name.h"
#include "util/tagged_log.h"

namespace kavrix::bench {
namespace {

std::string Repeated(const std::string& text, std::size_t size, const std::string& end) {
  std::string repeated;
  while (repeated.size() + end.size() < size) repeated += text;
  repeated.resize(size - end.size());
  return repeated + end;
}

void AddFinding(std::vector<Case>& cases) {
  const auto add = [&cases](const std::string& what, const std::string& name) {
    cases.push_back({"find/" + what, [name] { return [name] { Use(FindBubbleKind(name)); }; }});
  };
  const std::string last = ".LaneChangeBubble";
  for (const Name* const name : {&P1(), &P2(), &P3(), &P4()}) add(name->id, name->name);
  add("200 B of text", Repeated("a plain text, 200 bytes of it: ", 200, last));
  add("2 KB of text", Repeated("a plain text, two thousand bytes of it: ", 2048, last));
  add("2 KB without a marker", Repeated("a plain text, two thousand bytes of it: ", 2048, ""));
  add("2 KB of .", Repeated(".", 2048, last));
  add("2 KB of .l", Repeated(".l", 2048, last));
  add("2 KB of .tr", Repeated(".tr", 2048, last));
  add("2 KB of .LaneChangeBubbl", Repeated(".LaneChangeBubbl", 2048, last));
  add("2 KB of B", Repeated("B", 2048, last));
  add("2 KB of .eBubble", Repeated(".eBubble", 2048, last));
  add("2 KB of Bubble", Repeated("Bubble", 2048, last));
}

// Measures both ways to a payload: cut at both ends; cut at the front and split.
void AddEnvelope(std::vector<Case>& cases) {
  cases.push_back({"envelope/P1", [] {
                     return [] { Use(StripPrefixAndMarker(P1().name, MarkerOf(BubbleKind::kTraffic))); };
                   }});
  cases.push_back({"envelope/P4", [] {
                     return [] {
                       const auto parts = SplitFields<2>(StripPrefix(P4().name), '@');
                       Use(SplitFields<4>(parts.at[0], '_'));
                       Use(parts);
                     };
                   }});
}

template <class Descriptor, class KeyList>
void AddParseAndKeys(std::vector<Case>& cases, const Name& name, KeyList key_list) {
  cases.push_back({std::string("parse/") + name.id, [&name] {
                     return [&name] {
                       PayloadNodes payload;
                       Use(payload.Read(name.payload));
                       Use(payload);
                     };
                   }});
  cases.push_back({std::string("keys/") + name.id, [&name, key_list] {
                     const auto payload = std::make_shared<PayloadNodes>();
                     if (!payload->Read(name.payload)) std::abort();
                     return [payload, key_list] {
                       const auto descriptor = std::make_shared<Descriptor>();
                       JsonKeyReader keys(payload->nodes());
                       key_list(keys, *descriptor);
                       Use(descriptor);
                     };
                   }});
}

// Gives a log statement the member that it needs.
struct LogStatement {
  std::shared_ptr<KavrixContext> context_ = MakeContext();
  void Write() const {
    KAVRIX_LOG(LogTagKavrixMapLayerMgr_BubbleTraffic, logging::LogLevel::kRoutine,
               "resource_name:" << P1().name);
  }
};

// Sends the records to a sink that drops them, while it lives.
class LogsOn {
 public:
  LogsOn() {
    logging::SetLoggerInstance(logging::kavrix_log_instance_id_,
                               {std::make_shared<DroppingSink>(), logging::LogLevel::kRoutine, {}});
  }
  LogsOn(const LogsOn&) = delete;
  LogsOn& operator=(const LogsOn&) = delete;
  ~LogsOn() { logging::SetLoggerInstance(logging::kavrix_log_instance_id_, {}); }

 private:
  struct DroppingSink : logging::LogSink {
    void Write(const logging::LogRecord& record) override { Use(record); }
  };
};

void AddLogging(std::vector<Case>& cases) {
  cases.push_back({"log/off", [] { return [log = LogStatement()] { log.Write(); }; }});
  cases.push_back(
      {"log/on", [] { return [log = LogStatement(), on = std::make_shared<LogsOn>()] { log.Write(); }; }});
  for (const Name* const name : {&P1(), &P4()}) {
    cases.push_back({std::string("decode-logs-on/") + name->id, [name] {
                       const auto transform = std::make_shared<MapResourceTransform>(MakeContext());
                       return [transform, name, on = std::make_shared<LogsOn>()] {
                         std::shared_ptr<BubbleDrawDescriptor> out;
                         transform->GetBubbleDrawDescriptor(name->name, out);
                         Use(out);
                       };
                     }});
  }
}

void AddSnapshot(std::vector<Case>& cases) {
  cases.push_back({"snapshot/names of 8 bytes",
                   [] { return [context = MakeContext()] { Use(context->GetBubbleLayerConfigInLock()); }; }});
  cases.push_back({"snapshot/names of 24 bytes, 4 items", [] {
                     const auto context = MakeContext();
                     BubbleLayerConfigContainer config;
                     ForEachStyleRecord(config, [](const char*, auto& record) {
                       record.name = "a_style_name_of_24_bytes";
                       record.items = {1, 2, 3, 4};
                     });
                     context->SetBubbleLayerConfig(config);
                     return [context] { Use(context->GetBubbleLayerConfigInLock()); };
                   }});
}

}  // namespace

void AddStageCases(std::vector<Case>& cases) {
  AddFinding(cases);
  AddEnvelope(cases);
  AddParseAndKeys<TrafficDrawDescriptor>(cases, P1(), TrafficKeys());
  AddParseAndKeys<CameraDrawDescriptor>(cases, P2(), CameraKeys());
  AddParseAndKeys<MultiLightCountdownTimerDrawDescriptor>(cases, P3(), LightsKeys());
  AddSnapshot(cases);
  AddLogging(cases);
}

}  // namespace kavrix::bench
