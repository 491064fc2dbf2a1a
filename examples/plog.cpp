#include <iostream>

#include "map_resource/map_resource_transform.h"
#include "util/tagged_log_plog.h"

class Appender : public plog::IAppender {
 public:
  void write(const plog::Record& record) override { std::cout << record.getMessage() << '\n'; }
};

int main() {
  Appender appender;  // or any of plog's own, or a plog::Logger
  kavrix::logging::LoggerInstance instance;
  instance.sink = std::make_shared<kavrix::logging::PlogSink>(appender);
  kavrix::logging::SetLoggerInstance(kavrix::logging::kavrix_log_instance_id_, instance);

  kavrix::MapResourceTransform transform(std::make_shared<kavrix::KavrixContext>("main-map"));
  std::shared_ptr<kavrix::BubbleDrawDescriptor> out;
  transform.GetBubbleDrawDescriptor("kavrix://resource/{}.viaCircleBubble", out);
  kavrix::logging::SetLoggerInstance(kavrix::logging::kavrix_log_instance_id_, {});
}
