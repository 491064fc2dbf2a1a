#ifndef KAVRIX_TOOLS_BULK_H_
#define KAVRIX_TOOLS_BULK_H_

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "tools/command_line.h"
#include "tools/name_source.h"
#include "tools/text_names.h"

namespace kavrix::tools {

// The result of the work on one name.
struct NameResult {
  std::string text;  // for standard output
  bool failed = false;
  std::string problem;  // for standard error, without the name's place; empty when there is none
};

using NameWork = std::function<NameResult(InputName name)>;

// Calls `work` and returns its text; an exception makes a failed name with its message as the problem.
NameResult ResultOf(const std::function<std::string()>& work);

struct BulkOptions {
  std::string what = "name";         // the word before the number of an input in a problem
  std::vector<std::string> names;    // empty: read them from `input`
  std::optional<std::string> input;  // a file, "-" for standard input; none: standard input
  bool null_delimited = false;       // names in the input end in NUL, not newline
  int jobs = 1;                      // number of threads
  bool unbuffered = false;           // write each result as soon as it is ready, as on a terminal
  bool prints_results = true;        // one a name; else the command prints when all names are done
};

// Adds --jobs to a command.
void AddJobs(Command& command, BulkOptions& options);

// Adds --jobs and --unbuffered.
void AddBulkOptions(Command& command, BulkOptions& options);

// Adds --input to a command. `what` is what is read from the file: "names from, one a line".
void AddInputOption(Command& command, BulkOptions& options, const std::string& what);

// Returns the names of the file or of standard input. Throws UsageError when names are given as arguments
// too.
TextNames InputNames(const BulkOptions& options);

// Works on many names, on `jobs` threads, and writes results to standard output and problems to standard
// error, in the order of the names. A long run shows its progress if standard error is a terminal and neither
// results nor typed names use it. `work` is called from several threads at once. Returns how many names
// failed. Throws StreamError and what `work` throws, after everything before it is written.
std::size_t WorkInBulk(NameSource& source, const BulkOptions& options, const NameWork& work);

// The same for the names of the command line or, without any, those of the input. Throws ToldTrouble when
// that could not be read, and UsageError when there are both.
std::size_t WorkInBulk(const BulkOptions& options, const NameWork& work);

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_BULK_H_
