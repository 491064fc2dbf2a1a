#include "tools/bulk.h"

#include <unistd.h>

#include <atomic>
#include <cstdint>
#include <exception>
#include <optional>
#include <utility>

#include "tools/error_line.h"
#include "tools/ordered_pipeline.h"
#include "tools/progress.h"
#include "tools/streams.h"

namespace kavrix::tools {
namespace {

struct Batch {
  std::vector<InputName> names;
  std::size_t bytes = 0;  // of the input, read for them
  std::size_t failed = 0;
  std::string results;
  std::vector<std::pair<std::size_t, std::string>> problems;  // each with the number of its name
};

// Enough names to make the hand-over between threads cheap, few enough to keep a batch's results in cache.
constexpr std::size_t kMostNames = 64;

bool ShowsResults(const BulkOptions& options) { return options.prints_results && isatty(STDOUT_FILENO) != 0; }

bool ShowsProgress(const NameSource& source, const BulkOptions& options) {
  return isatty(STDERR_FILENO) != 0 && !ShowsResults(options) && !source.IsTyped();
}

}  // namespace

NameResult ResultOf(const std::function<std::string()>& work) {
  try {
    return {work(), false, ""};
  } catch (const std::exception& error) {
    return {"", true, error.what()};
  }
}

void AddJobs(Command& command, BulkOptions& options) {
  constexpr int kMostJobs = 256;
  command.Integer("--jobs N", options.jobs, 1, kMostJobs, "Number of threads that work");
}

void AddBulkOptions(Command& command, BulkOptions& options) {
  AddJobs(command, options);
  command.Flag("--unbuffered", options.unbuffered, "Write each result as soon as it is ready");
}

void AddInputOption(Command& command, BulkOptions& options, const std::string& what) {
  command.Text("--input FILE", options.input, "File to read " + what + ", instead of standard input (\"-\")");
}

TextNames InputNames(const BulkOptions& options) {
  if (!options.names.empty()) throw UsageError("--input FILE takes the place of arguments; both are given");
  TextNames::Options text_options;
  text_options.null_delimited = options.null_delimited;
  return TextNames({options.input.value_or("-")}, text_options);
}

std::size_t WorkInBulk(NameSource& source, const BulkOptions& options, const NameWork& work) {
  const bool unbuffered = options.unbuffered || ShowsResults(options);
  Output output(unbuffered);
  Progress progress(ShowsProgress(source, options), source.Bytes());
  std::size_t failed = 0;

  // What was written while the input pauses is not held back, also when a thread writes it after the pause
  // began.
  std::atomic<bool> is_paused{false};
  source.SetOnPause([&] {
    is_paused = true;
    output.Flush();
  });
  const auto take = [&](Batch& batch) {
    const std::uint64_t bytes_before = source.BytesTaken();
    const bool is_any = source.Take(unbuffered ? 1 : kMostNames, batch.names);
    batch.bytes = source.BytesTaken() - bytes_before;
    is_paused = false;
    return is_any;
  };
  const auto work_on = [&](Batch& batch) {
    for (InputName& name : batch.names) {
      const std::size_t number = name.number;
      const NameResult result = work(std::move(name));
      if (!result.problem.empty()) batch.problems.emplace_back(number, result.problem);
      batch.results += result.text;
      batch.failed += result.failed ? 1 : 0;
    }
  };
  const auto put = [&](const Batch& batch) {
    output.Write(batch.results);
    for (const auto& [number, problem] : batch.problems) {
      WriteErrorLine(options.what + ' ' + std::to_string(number) + ": " + problem);
    }
    if (is_paused) output.Flush();
    failed += batch.failed;
    progress.Add(batch.names.size(), batch.failed, batch.bytes);
  };
  const auto stop = [&] { source.Interrupt(); };
  OrderedPipeline<Batch>({take, work_on, put, stop}).Run(options.jobs);
  output.Flush();
  return failed;
}

std::size_t WorkInBulk(const BulkOptions& options, const NameWork& work) {
  if (!options.names.empty() && !options.input) {
    GivenNames names(options.names);
    return WorkInBulk(names, options, work);
  }
  TextNames names = InputNames(options);
  const std::size_t failed = WorkInBulk(names, options, work);
  if (names.HadTrouble()) throw ToldTrouble();
  return failed;
}

}  // namespace kavrix::tools
