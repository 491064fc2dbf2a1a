// A client without RTTI and exceptions, which compiles every public header.
#include "all_public_headers.h"

#if defined(__cpp_rtti) || defined(__cpp_exceptions)
#error "compiled with RTTI or exceptions"
#endif

namespace {

// Decodes only names that cannot throw.
std::shared_ptr<kavrix::BubbleDrawDescriptor> Decode(kavrix::MapResourceTransform& transform,
                                                     const std::string& name) {
  std::shared_ptr<kavrix::BubbleDrawDescriptor> out;
  if (name.size() < std::string(kavrix::MapResourceManager::kavrix_resource_prefix).size()) return out;
  transform.GetBubbleDrawDescriptor(name, out);
  return out;
}

class CountingSink : public kavrix::logging::LogSink {
 public:
  void Write(const kavrix::logging::LogRecord&) override { ++count; }
  int count = 0;
};

}  // namespace

int main() {
  const auto sink = std::make_shared<CountingSink>();
  kavrix::logging::SetLoggerInstance(0, {sink, kavrix::logging::LogLevel::kFailure, {}});
  kavrix::MapResourceTransform transform(std::make_shared<kavrix::KavrixContext>("plain"));
  const auto out = Decode(transform, R"(kavrix://resource/{"content":"hi"}.trafficBubble)");
  const auto traffic = kavrix::As<kavrix::TrafficDrawDescriptor>(out);
  const bool decodes = traffic != nullptr && traffic->content == "hi" &&
                       kavrix::As<kavrix::CameraDrawDescriptor>(out) == nullptr;
  const bool survives_failures = Decode(transform, "short") == nullptr &&
                                 Decode(transform, "kavrix://resource/{.trafficBubble") != nullptr &&
                                 Decode(transform, "kavrix://resource/unknown") == nullptr;
  return decodes && survives_failures && sink->count == 2 ? 0 : 1;
}
