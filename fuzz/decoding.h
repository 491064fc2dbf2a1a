#ifndef KAVRIX_FUZZ_DECODING_H_
#define KAVRIX_FUZZ_DECODING_H_

#include <stdexcept>

#include "fuzz/fuzzing.h"
#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_transform.h"
#include "tests/reference/reference_decoder.h"
#include "tests/support/record_collector.h"

namespace kavrix::fuzz {

// The result of decoding one name.
struct Outcome {
  std::shared_ptr<BubbleDrawDescriptor> out;
  std::vector<test::SeenRecord> records;
  std::string exception;
};

inline std::shared_ptr<KavrixContext> MakeContext() {
  BubbleLayerConfigContainer config;
  std::uint32_t word = 1;
  ForEachStyleRecord(config, [&](const char* name, auto& record) {
    record.name = name;
    for (std::size_t i = 1; i <= record.kValueCount; ++i) record.SetWord(i, word++);
  });
  auto context = std::make_shared<KavrixContext>("fuzz");
  context->SetBubbleLayerConfig(config);
  context->multi_light_type = 3;
  return context;
}

// Decodes with all log records on.
inline Outcome Decode(const std::string& name, EntryPoint entry_point,
                      const std::shared_ptr<BubbleDrawDescriptor>& before) {
  static test::RecordCollector collector;
  static MapResourceTransform transform(MakeContext());
  collector.Clear();
  Outcome outcome{before, {}, ""};
  try {
    if (entry_point == EntryPoint::kBubble) {
      transform.GetBubbleDrawDescriptor(name, outcome.out);
    } else {
      transform.GetMarkerDrawDescriptor(name, outcome.out);
    }
  } catch (const std::out_of_range& exception) {
    // The name is shorter than the prefix. Nothing else may be thrown.
    outcome.exception = exception.what();
  }
  outcome.records = collector.records();
  return outcome;
}

// What the reference decoder makes of the name.
inline Outcome DecodeByReference(const std::string& name, EntryPoint entry_point,
                                 const std::shared_ptr<BubbleDrawDescriptor>& before) {
  static const reference::ReferenceDecoder decoder(MakeContext());
  Outcome outcome{before, {}, ""};
  try {
    if (entry_point == EntryPoint::kBubble) {
      decoder.GetBubbleDrawDescriptor(name, outcome.out, &outcome.records);
    } else {
      decoder.GetMarkerDrawDescriptor(name, outcome.out, &outcome.records);
    }
  } catch (const std::out_of_range& exception) {
    outcome.exception = exception.what();
  }
  return outcome;
}

// Finds the kind by one plain search for each marker.
inline std::optional<BubbleKind> FindBubbleKindPlainly(std::string_view name) {
  for (const BubbleKind kind : kBubbleKinds) {
    if (name.find(MarkerOf(kind)) != std::string_view::npos) return kind;
  }
  return std::nullopt;
}

// Checks what must hold for every name.
inline void CheckName(std::string_view text, EntryPoint entry_point) {
  // On the heap, where AddressSanitizer also sees reads past the end of a short string.
  const auto name = std::make_unique<const std::string>(text);
  const auto before = std::make_shared<BubbleDrawDescriptor>();
  const Outcome outcome = Decode(*name, entry_point, before);
  Require(*before == BubbleDrawDescriptor(), "the descriptor that was in `out` is never written to");
  // The reference decoder keeps nothing from one name to the next.
  const Outcome reference = DecodeByReference(*name, entry_point, before);
  Require(outcome.exception.empty() == reference.exception.empty(), "the reference decoder throws as well");
  Require((outcome.out == before) == (reference.out == before), "it leaves `out` alone as well");
  Require(*outcome.out == *reference.out, "it makes the same descriptor");
  Require(outcome.records == reference.records, "it writes the same log records");
  if (entry_point == EntryPoint::kMarker) return;

  const std::optional<BubbleKind> kind = FindBubbleKind(ExactCopy(text).text());
  Require(kind == FindBubbleKindPlainly(text), "the kind is that of the first marker in order that occurs");
  if (!kind) {
    Require(outcome.out == before, "a name without a marker leaves `out` alone");
    Require(outcome.records.size() == 2 && outcome.records[1].level == 1,
            "a name without a marker is a failure");
  }
}

}  // namespace kavrix::fuzz

#endif  // KAVRIX_FUZZ_DECODING_H_
