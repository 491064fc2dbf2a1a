#ifndef KAVRIX_TESTS_REFERENCE_CALL_H_
#define KAVRIX_TESTS_REFERENCE_CALL_H_

#include <iomanip>
#include <locale>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "config/marker_bubble_config.h"
#include "context/kavrix_context.h"
#include "descriptors/bubble_draw_descriptor.h"
#include "tests/support/record_collector.h"

namespace kavrix::reference {

using Out = std::shared_ptr<BubbleDrawDescriptor>;

constexpr int kRoutine = 0;
constexpr int kFailure = 1;

// What one decode works with.
struct Call {
  const std::string& name;
  const KavrixContext& context;
  const MarkerBubbleConfig& marker_bubble_config;
  std::vector<test::SeenRecord>* records;  // null: nothing is logged

  template <class... Insertions>
  void Log(int level, const char* tag, const char* function, const Insertions&... insertions) const {
    if (records == nullptr) return;
    std::ostringstream message;
    message.imbue(std::locale::classic());
    message << "[Kavrix][" << context.context_name << "]" << std::fixed << std::setprecision(6);
    (message << ... << insertions);
    records->push_back({level, tag, function, message.str()});
  }
};

}  // namespace kavrix::reference

#endif  // KAVRIX_TESTS_REFERENCE_CALL_H_
