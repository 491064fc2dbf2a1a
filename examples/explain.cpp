#include "inspect/explain.h"

#include <iostream>

// In its debug build, a client tells why a bubble looks wrong.
void ReportProblems(const std::string& name) {
  for (const kavrix::inspect::Problem& problem : kavrix::inspect::CheckBubbleName(name)) {
    std::cout << problem.code << ": " << problem.message << '\n';
  }
}

int main() {
  const std::string name = R"(kavrix://resource/{"contnt":"Jam","mode":1}.trafficBubble)";
  ReportProblems(name);

  kavrix::inspect::TransformSetup setup;
  setup.context = std::make_shared<kavrix::KavrixContext>("main-map");
  for (const auto& member : kavrix::inspect::ExplainBubbleName(name, setup).members) {
    if (member.from != kavrix::inspect::Origin::kName) continue;
    std::cout << member.member.path << " is of key " << member.key << ", bytes " << member.bytes->begin
              << " to " << member.bytes->end << '\n';
  }
}
