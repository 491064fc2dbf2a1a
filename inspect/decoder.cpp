#include "inspect/decoder.h"

#include <atomic>
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

std::shared_ptr<KavrixContext> CopyOf(const KavrixContext& context) {
  auto copy = std::make_shared<KavrixContext>(context.context_name);
  copy->SetBubbleLayerConfig(context.GetBubbleLayerConfigInLock());
  copy->multi_light_type = context.multi_light_type.load();
  return copy;
}

bool TellsOfFailedParse(const CapturedRecord& record, const std::string& head) {
  return record.level == static_cast<int>(logging::LogLevel::kFailure) &&
         record.message.compare(head.size(), 6, "parse ") == 0;
}

}  // namespace

Decoder::Decoder(const TransformSetup& setup, EntryPoint entry_point)
    : record_head_("[Kavrix][" + setup.context->context_name + "]"), entry_point_(entry_point) {
  for (std::size_t i = 0; i < kTransforms; ++i) {
    transforms_.emplace_back(CopyOf(*setup.context)).SetMarkerBubbleConfig(setup.marker_bubble);
  }
  logging::SetLoggerInstance(logging::kavrix_log_instance_id_, {std::make_shared<CapturingSink>(), {}, {}});
}

MapResourceTransform& Decoder::TransformOfThread() {
  static std::atomic<std::size_t> threads{0};
  thread_local const std::size_t number = threads++;
  return transforms_[number % kTransforms];
}

Decoded Decoder::Decode(std::string name) {
  MapResourceTransform& transform = TransformOfThread();
  Decoded decoded;
  decoded.name = std::move(name);
  decoded.records.reserve(kUsualRecords);
  captured_records = &decoded.records;
  try {
    if (entry_point_ == EntryPoint::kMarker) {
      transform.GetMarkerDrawDescriptor(decoded.name, decoded.descriptor);
    } else {
      decoded.kind = FindBubbleKind(decoded.name);
      decoded.failed = !decoded.kind;
      transform.GetBubbleDrawDescriptor(decoded.name, decoded.descriptor);
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

}  // namespace kavrix::inspect
