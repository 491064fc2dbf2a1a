#include <iostream>

#include "map_resource/map_resource_transform.h"
#include "util/log_line.h"

int main() {
  namespace logging = kavrix::logging;
  logging::LoggerInstance instance;
  instance.sink = std::make_shared<logging::StreamSink>(std::cout);
  instance.least_level = logging::LogLevel::kFailure;
  instance.tag_filter = [](const std::string& tag) { return tag != "KavrixMapLayerMgr_CameraLayer"; };
  logging::SetLoggerInstance(logging::kavrix_log_instance_id_, instance);

  kavrix::MapResourceTransform transform(std::make_shared<kavrix::KavrixContext>("main-map"));
  std::shared_ptr<kavrix::BubbleDrawDescriptor> out;
  transform.GetBubbleDrawDescriptor("kavrix://resource/unknown", out);
  logging::SetLoggerInstance(logging::kavrix_log_instance_id_, {});
}
