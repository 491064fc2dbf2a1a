// A client like that of the README, with nothing but the installed headers and the target.
#include <iostream>

#include "config/bubble_layer_config_file.h"
#include "config/marker_bubble_config.h"
#include "descriptors/descriptors.h"
#include "map_resource/map_resource_manager.h"
#include "map_resource/map_resource_transform.h"
#include "map_resource/resource_catalogue.h"
#include "util/json_util.h"
#include "util/string_util.h"
#include "util/tagged_log.h"

int main() {
  const auto context = std::make_shared<kavrix::KavrixContext>("client");
  context->SetBubbleLayerConfig(
      kavrix::ParseBubbleLayerConfig(R"({"bubble_layer":{"traffic_style":{"name":"day"}}})").bubble_layer);
  kavrix::MapResourceTransform transform(context);
  std::shared_ptr<kavrix::BubbleDrawDescriptor> out;
  transform.GetBubbleDrawDescriptor(
      std::string(kavrix::MapResourceManager::kavrix_resource_prefix) + R"({"content":"hi"}.trafficBubble)",
      out);
  const auto traffic = std::dynamic_pointer_cast<kavrix::TrafficDrawDescriptor>(out);
  if (traffic == nullptr || traffic->content != "hi" || traffic->style_name != "day") return 1;
  std::cout << *traffic << '\n' << kavrix::R::ResourceID2DescriptionMap.at(1) << '\n';
  return 0;
}
