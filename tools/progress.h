#ifndef KAVRIX_TOOLS_PROGRESS_H_
#define KAVRIX_TOOLS_PROGRESS_H_

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

namespace kavrix::tools {

// How far a long run has come.
struct ProgressCounts {
  std::uint64_t names = 0;
  std::uint64_t failed = 0;
  std::uint64_t bytes = 0;
  std::optional<std::uint64_t> all_bytes;  // none: unknown, so nobody can tell when the run will end
};

// Names, names a second, failed so far, time left where it is known.
std::string ProgressText(const ProgressCounts& counts, double seconds);

// One line on standard error that a run of more than two seconds keeps up to date, gone with the object.
class Progress {
 public:
  // When not `shown`, nothing is ever written.
  Progress(bool shown, std::optional<std::uint64_t> all_bytes);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress();

  void Add(std::size_t names, std::size_t failed, std::size_t bytes);

 private:
  using Clock = std::chrono::steady_clock;

  bool shown_;
  bool drawn_ = false;
  ProgressCounts counts_;
  Clock::time_point begin_ = Clock::now();
  Clock::time_point next_draw_;
};

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_PROGRESS_H_
