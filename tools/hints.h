#ifndef KAVRIX_TOOLS_HINTS_H_
#define KAVRIX_TOOLS_HINTS_H_

#include <atomic>
#include <string>

#include "tools/name_options.h"

namespace kavrix::tools {

// Says what a failed name of the command line was probably meant to be, each hint once. Names from standard
// input get none: they come from programs.
class Hints {
 public:
  explicit Hints(const NameOptions& options) : options_(options) {}

  // Returns the hint for a name that failed; empty when there is none.
  std::string For(const std::string& name);

 private:
  const NameOptions& options_;
  std::atomic<bool> told_of_marker_{false};
  std::atomic<bool> told_of_prefix_{false};
};

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_HINTS_H_
