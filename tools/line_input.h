#ifndef KAVRIX_TOOLS_LINE_INPUT_H_
#define KAVRIX_TOOLS_LINE_INPUT_H_

#include <atomic>
#include <cstddef>
#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kavrix::tools {

// A file or stream, many lines at a time. Memory does not grow with the length of the input, only with that
// of a line.
class LineInput {
 public:
  struct Options {
    char delimiter = '\n';
    // A longer line may be cut, as if it ended there.
    std::size_t longest_line = std::numeric_limits<std::size_t>::max();
    std::size_t buffer_size = 1 << 17;  // stays in the processor's cache
  };

  // The descriptor stays open. `what` is what messages call the input. When another thread sets
  // `interrupted`, a Next that waits for input returns soon, as at the end of the input.
  LineInput(int descriptor, std::string what, const Options& options, const std::atomic<bool>& interrupted)
      : descriptor_(descriptor),
        what_(std::move(what)),
        options_(options),
        interrupted_(interrupted),
        buffer_(options.buffer_size) {}

  // Sets what is called before the input is waited for.
  void SetOnPause(std::function<void()> on_pause) { on_pause_ = std::move(on_pause); }

  // The next lines that are there as a whole, each with its delimiter; the last of the input may lack it.
  // Waits only for the first. Empty at the end of the input. Valid until the next call. Throws StreamError.
  std::string_view Next();

  // Whether the last line of Next was cut for its length.
  bool IsCut() const { return is_cut_; }

 private:
  bool AwaitInput() const;
  bool Read();
  void MakeRoom();
  std::string_view Take(std::size_t end);

  const int descriptor_;
  const std::string what_;
  const Options options_;
  const std::atomic<bool>& interrupted_;
  std::vector<char> buffer_;
  std::size_t begin_ = 0;  // of what Next has not returned yet
  std::size_t end_ = 0;    // of what was read
  bool is_cut_ = false;
  std::function<void()> on_pause_;
};

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_LINE_INPUT_H_
