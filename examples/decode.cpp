#include <iostream>

#include "descriptors/traffic_draw_descriptor.h"
#include "map_resource/map_resource_transform.h"

int main() {
  const auto context = std::make_shared<kavrix::KavrixContext>("main-map");
  kavrix::BubbleLayerConfigContainer config;
  config.traffic_style.name = "traffic_day";
  config.traffic_style.SetWord(2, 0xffe5484d);
  context->SetBubbleLayerConfig(config);  // at any time, from any thread

  kavrix::MapResourceTransform transform(context);
  std::shared_ptr<kavrix::BubbleDrawDescriptor> out;
  transform.GetBubbleDrawDescriptor(R"(kavrix://resource/{"content":"Jam","mode":0}.trafficBubble)", out);
  if (const auto traffic = kavrix::As<kavrix::TrafficDrawDescriptor>(out)) {
    std::cout << traffic->content << ", style " << traffic->style_name << '\n';
  }
}
