#include <iostream>

#include "map_resource/resource_name_encoder.h"

int main() {
  kavrix::TrafficDrawDescriptor traffic;
  traffic.content = "km 3.5 @ exit 7";
  traffic.mode_flag = true;
  std::cout << kavrix::EncodeTrafficBubbleResourceName(traffic) << '\n';

  kavrix::BubbleDrawDescriptor label;
  label.content = "A_1";
  try {
    std::cout << kavrix::EncodeRouteLabelBubbleResourceName(label) << '\n';
  } catch (const kavrix::EncodeError& error) {
    std::cout << error.what() << '\n';
  }
}
