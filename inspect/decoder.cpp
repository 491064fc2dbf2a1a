#include "inspect/decoder.h"

#include <exception>
#include <utility>

#include "util/tagged_log.h"

namespace kavrix::inspect {
namespace {

// Where the records of this thread's decode go; null: nowhere.
thread_local std::vector<CapturedRecord>* captured_records = nullptr;

constexpr std::size_t kUsualRecords = 3;  // the most that a decode writes without failing

class CapturingSink : public logging::LogSink {
 public:
  void Write(const logging::LogRecord& record) override {
    if (captured_records == nullptr) return;
    captured_records->push_back(
        {static_cast<int>(record.level), record.tag, record.function, record.message});
  }
};

bool TellsOfFailedParse(const CapturedRecord& record, const std::string& head) {
  return record.level == static_cast<int>(logging::LogLevel::kFailure) &&
         record.message.compare(head.size(), 6, "parse ") == 0;
}

}  // namespace

Decoder::Decoder(const TransformSetup& setup, EntryPoint entry_point)
    : transform_(setup.context),
      record_head_("[Kavrix][" + setup.context->context_name + "]"),
      entry_point_(entry_point) {
  transform_.SetMarkerBubbleConfig(setup.marker_bubble);
  logging::SetLoggerInstance(logging::kavrix_log_instance_id_, {std::make_shared<CapturingSink>(), {}, {}});
}

Decoded Decoder::Decode(std::string name) {
  Decoded decoded;
  decoded.name = std::move(name);
  decoded.records.reserve(kUsualRecords);
  captured_records = &decoded.records;
  try {
    if (entry_point_ == EntryPoint::kMarker) {
      transform_.GetMarkerDrawDescriptor(decoded.name, decoded.descriptor);
    } else {
      decoded.kind = FindBubbleKind(decoded.name);
      decoded.failed = !decoded.kind;
      transform_.GetBubbleDrawDescriptor(decoded.name, decoded.descriptor);
    }
  } catch (const std::exception& exception) {
    decoded.exception = exception.what();
    decoded.failed = true;
  }
  captured_records = nullptr;
  for (const CapturedRecord& record : decoded.records) {
    if (TellsOfFailedParse(record, record_head_)) decoded.failed = true;
  }
  return decoded;
}

std::string StyleRecordUsed(const std::string& name) {
  BubbleLayerConfigContainer named_after_themselves;
  ForEachStyleRecord(named_after_themselves, [](const char* member, auto& record) { record.name = member; });
  const auto context = std::make_shared<KavrixContext>("");
  context->SetBubbleLayerConfig(std::move(named_after_themselves));
  MarkerBubbleConfig marker_bubble;
  marker_bubble.name = "marker_bubble";
  MapResourceTransform transform(context);
  transform.SetMarkerBubbleConfig(std::move(marker_bubble));
  std::shared_ptr<BubbleDrawDescriptor> descriptor;
  try {
    transform.GetBubbleDrawDescriptor(name, descriptor);
  } catch (const std::exception&) {
    // What was set before the exception stays set.
  }
  return descriptor != nullptr ? descriptor->style_name : "";
}

}  // namespace kavrix::inspect
