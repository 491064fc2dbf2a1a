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

// Yields the names of the command line or, without any, those of standard input.
class NameSource {
 public:
  explicit NameSource(const BulkOptions& options)
      : given_(options.names), input_(options.null_delimited ? '\0' : '\n') {}

  // Adds up to `most` names; waits only for the first. Returns false at the end.
  bool Take(std::size_t most, std::vector<std::string>& names) {
    std::string name;
    while (names.size() < most && (names.empty() || HasNext()) && Next(name))
      names.push_back(std::move(name));
    return !names.empty();
  }

  void Interrupt() { input_.Interrupt(); }
  void SetOnPause(std::function<void()> on_pause) { input_.SetOnPause(std::move(on_pause)); }

  // The size of all the names, newlines included; none when it is unknown.
  std::optional<std::uint64_t> Bytes() const {
    if (given_.empty()) return NameInput::BytesLeft();
    std::uint64_t bytes = 0;
    for (const std::string& name : given_) bytes += name.size() + 1;
    return bytes;
  }

 private:
  bool HasNext() const { return given_.empty() ? input_.HasNext() : given_taken_ < given_.size(); }
  bool Next(std::string& name) {
    if (given_.empty()) return input_.Next(name);
    if (!HasNext()) return false;
    name = given_[given_taken_++];
    return true;
  }

  const std::vector<std::string>& given_;
  std::size_t given_taken_ = 0;
  NameInput input_;
};

struct Batch {
  std::vector<std::string> names;
  std::size_t before = 0;  // how many names the batches before it hold
  std::size_t bytes = 0;
  std::size_t failed = 0;
  std::string results;
  std::vector<std::pair<std::size_t, std::string>> problems;  // each with the number of its name
};

// Enough names to make the hand-over between threads cheap, few enough to keep a batch's results in cache.
constexpr std::size_t kMostNames = 64;

bool ShowsProgress(const BulkOptions& options) {
  const bool types_names = options.names.empty() && isatty(STDIN_FILENO) != 0;
  return isatty(STDERR_FILENO) != 0 && isatty(STDOUT_FILENO) == 0 && !types_names;
}

}  // namespace

NameResult ResultOf(const std::function<std::string()>& work) {
  try {
    return {work(), false, ""};
  } catch (const std::exception& error) {
    return {"", true, error.what()};
  }
}

void AddBulkOptions(Command& command, BulkOptions& options) {
  constexpr int kMostJobs = 256;
  command.Integer("--jobs", options.jobs, 1, kMostJobs, "Number of threads that work");
  command.Flag("--unbuffered", options.unbuffered, "Write each result as soon as it is ready");
}

std::size_t WorkInBulk(const BulkOptions& options, const NameWork& work) {
  NameSource source(options);
  const bool unbuffered = options.unbuffered || isatty(STDOUT_FILENO) != 0;
  Output output(unbuffered);
  Progress progress(ShowsProgress(options), source.Bytes());
  std::size_t failed = 0;

  // What was written while the input pauses is not held back, also when a thread writes it after the pause
  // began.
  std::atomic<bool> is_paused{false};
  source.SetOnPause([&] {
    is_paused = true;
    output.Flush();
  });
  std::size_t taken = 0;
  const auto take = [&](Batch& batch) {
    const bool is_any = source.Take(unbuffered ? 1 : kMostNames, batch.names);
    is_paused = false;
    batch.before = taken;
    taken += batch.names.size();
    return is_any;
  };
  const auto work_on = [&](Batch& batch) {
    for (std::size_t i = 0; i < batch.names.size(); ++i) {
      batch.bytes += batch.names[i].size() + 1;
      const NameResult result = work(std::move(batch.names[i]), batch.before + i + 1);
      if (!result.problem.empty()) batch.problems.emplace_back(batch.before + i + 1, result.problem);
      batch.results += result.text;
      batch.failed += result.failed ? 1 : 0;
    }
  };
  const auto put = [&](const Batch& batch) {
    output.Write(batch.results);
    for (const auto& [place, problem] : batch.problems) {
      WriteErrorLine(options.what + ' ' + std::to_string(place) + ": " + problem);
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

}  // namespace kavrix::tools
