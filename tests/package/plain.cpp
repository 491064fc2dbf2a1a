// A client without RTTI and exceptions, which compiles every public header.
#include "all_public_headers.h"

#if defined(__cpp_rtti) || defined(__cpp_exceptions)
#error "compiled with RTTI or exceptions"
#endif

// In the source that has RTTI and exceptions.
bool IsTrafficByRtti(kavrix::BubbleDrawDescriptor& descriptor);
bool CatchesTheException(int (*decode_too_short)(const std::string& name));

namespace {

// Decodes only names that cannot throw.
std::shared_ptr<kavrix::BubbleDrawDescriptor> Decode(kavrix::MapResourceTransform& transform,
                                                     const std::string& name) {
  std::shared_ptr<kavrix::BubbleDrawDescriptor> out;
  if (name.size() < std::string(kavrix::MapResourceManager::kavrix_resource_prefix).size()) return out;
  transform.GetBubbleDrawDescriptor(name, out);
  return out;
}

// A frame without exceptions, which one passes through. Owns nothing, as no destructor of it would run.
int DecodeTooShort(const std::string& name) {
  static kavrix::MapResourceTransform transform(std::make_shared<kavrix::KavrixContext>("plain"));
  static std::shared_ptr<kavrix::BubbleDrawDescriptor> out;
  transform.GetBubbleDrawDescriptor(name, out);
  return out == nullptr ? 0 : 1;
}

int failures = 0;

#ifdef KAVRIX_OWN_SINK
class CountingSink : public kavrix::logging::LogSink {
 public:
  void Write(const kavrix::logging::LogRecord&) override { ++failures; }
};

void CountFailures() {
  using namespace kavrix::logging;
  SetLoggerInstance(kavrix_log_instance_id_, {std::make_shared<CountingSink>(), LogLevel::kFailure, {}});
}
constexpr int kExpectedFailures = 2;

// Counts the lines that show their tag.
class LineCounter : public plog::IAppender {
 public:
  void write(const plog::Record& record) override {
    const auto* const tagged = kavrix::logging::TaggedRecord::Of(record);
    if (tagged == nullptr) return;
    const std::string line = kavrix::logging::TaggedTxtFormatter::format(record);
    if (line.find("[" + tagged->tag() + "] ") != std::string::npos) ++lines;
  }
  int lines = 0;
};

bool JoinsPlog() {
  const std::uint32_t earlier = kavrix::logging::kavrix_log_instance_id_;
  LineCounter counter;
  plog::Logger<3> logger;
  logger.setMaxSeverity(plog::info);
  logger.addAppender(&counter);
  const bool joined = kavrix::logging::JoinPlog<3>();
  kavrix::MapResourceTransform transform(std::make_shared<kavrix::KavrixContext>("plain"));
  Decode(transform, "kavrix://resource/unknown");
  kavrix::logging::kavrix_log_instance_id_ = earlier;
  return joined && counter.lines == 2;
}
#else
void CountFailures() {}
bool JoinsPlog() { return kavrix::logging::JoinPlog<3>() == false; }
constexpr int kExpectedFailures = 0;
#endif

}  // namespace

int main() {
  CountFailures();
  kavrix::MapResourceTransform transform(std::make_shared<kavrix::KavrixContext>("plain"));
  const auto out = Decode(transform, R"(kavrix://resource/{"content":"hi"}.trafficBubble)");
  const auto traffic = kavrix::As<kavrix::TrafficDrawDescriptor>(out);
  const bool decodes = traffic != nullptr && traffic->content == "hi" &&
                       kavrix::As<kavrix::CameraDrawDescriptor>(out) == nullptr;
  const bool survives_failures = Decode(transform, "short") == nullptr &&
                                 Decode(transform, "kavrix://resource/{.trafficBubble") != nullptr &&
                                 Decode(transform, "kavrix://resource/unknown") == nullptr;
  kavrix::TrafficDrawDescriptor own;
  const bool has_rtti = IsTrafficByRtti(own) && IsTrafficByRtti(*traffic);
  const bool survives = survives_failures && failures == kExpectedFailures;
  return decodes && survives && has_rtti && JoinsPlog() && CatchesTheException(DecodeTooShort) ? 0 : 1;
}
