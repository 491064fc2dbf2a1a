#ifndef KAVRIX_TOOLS_BULK_H_
#define KAVRIX_TOOLS_BULK_H_

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "tools/command_line.h"

namespace kavrix::tools {

// What comes of a name.
struct NameResult {
  std::string text;  // for standard output
  bool failed = false;
  std::string problem;  // for standard error, less the place; empty: nothing to say
};

// What `work` returns, or what it throws as the problem of a failed name.
NameResult ResultOf(const std::function<std::string()>& work);

struct BulkOptions {
  std::string what = "name";       // what is counted in front of problems
  std::vector<std::string> names;  // without any, those of standard input
  bool null_delimited = false;     // names on standard input end in NUL, not newline
  int jobs = 1;                    // how many threads work
  bool unbuffered = false;         // write each result as soon as it is there; always so on a terminal
};

// Adds --jobs and --unbuffered to a command.
void AddBulkOptions(Command& command, BulkOptions& options);

// Works on many names, `jobs` at a time, and writes the results to standard output, problems to standard
// error, in the order of the names. Long runs show their progress where standard error is a terminal that has
// no other use. `work` is called from several threads at once. Returns how many names failed. Throws
// StreamError and what `work` throws, with all that came before written.
std::size_t WorkInBulk(const BulkOptions& options, const std::function<NameResult(std::string name)>& work);

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_BULK_H_
