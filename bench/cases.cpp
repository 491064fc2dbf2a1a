#include "bench/cases.h"

namespace kavrix::bench {

const std::vector<Case>& Cases() {
  static const std::vector<Case> cases = [] {
    std::vector<Case> all;
    // What the way to measure costs by itself; the reports take it off.
    all.push_back({"nothing/nothing", [] { return [] {}; }});
    AddPeerCases(all);
    AddStageCases(all);
    AddDecodeCases(all);
    return all;
  }();
  return cases;
}

}  // namespace kavrix::bench
