#include <iostream>

#include "map_resource/map_resource_transform.h"
#include "util/tagged_log_plog.h"

class Appender : public plog::IAppender {
 public:
  void write(const plog::Record& record) override {
    const auto* tagged = kavrix::logging::TaggedRecord::Of(record);  // null: a record of the client's own
    if (tagged != nullptr) std::cout << '[' << tagged->tag() << "] ";
    std::cout << record.getMessage() << '\n';
  }
};

int main() {
  Appender appender;       // or any of plog's own
  plog::Logger<0> logger;  // plog::init makes one of these
  logger.setMaxSeverity(plog::info);
  logger.addAppender(&appender);
  kavrix::logging::JoinPlog<0>();

  kavrix::MapResourceTransform transform(std::make_shared<kavrix::KavrixContext>("main-map"));
  std::shared_ptr<kavrix::BubbleDrawDescriptor> out;
  transform.GetBubbleDrawDescriptor("kavrix://resource/{}.viaCircleBubble", out);
}
