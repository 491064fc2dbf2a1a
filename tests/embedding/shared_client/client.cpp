// A shared library of the parent's that holds the static library.
#include "client.h"

#include "descriptors/traffic_draw_descriptor.h"
#include "map_resource/map_resource_transform.h"

std::string ContentOf(const std::string& resource_name) {
  kavrix::MapResourceTransform transform(std::make_shared<kavrix::KavrixContext>("client"));
  std::shared_ptr<kavrix::BubbleDrawDescriptor> out;
  transform.GetBubbleDrawDescriptor(resource_name, out);
  const auto traffic = kavrix::As<kavrix::TrafficDrawDescriptor>(out);
  return traffic == nullptr ? "" : traffic->content;
}
