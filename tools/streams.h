#ifndef KAVRIX_TOOLS_STREAMS_H_
#define KAVRIX_TOOLS_STREAMS_H_

#include <unistd.h>

#include <atomic>
#include <cstdint>
#include <exception>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kavrix::tools {

// A file or stream that could not be read or written; the text says which and why.
class StreamError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Nobody reads standard output any more, as after "| head". The tool then ends without a word.
class ReaderGone : public std::exception {};

// All that a regular file or a pipe holds. Throws StreamError, for more than 16 MiB and for other files
// (devices, folders, sockets) too.
std::string ReadFile(const std::string& path);

// A stream, standard input by default, as a sequence of names, each ended by the delimiter or by the end of
// the input. A name that ends in newline loses a '\r' before it. Memory does not grow with the length of the
// input, only with that of a name.
class NameInput {
 public:
  explicit NameInput(char delimiter, int descriptor = STDIN_FILENO, std::size_t buffer_size = 1 << 16)
      : delimiter_(delimiter), descriptor_(descriptor), buffer_(buffer_size) {}

  // Sets what is called before the input is waited for.
  void SetOnPause(std::function<void()> on_pause) { on_pause_ = std::move(on_pause); }

  // False at the end of the input. Throws StreamError.
  bool Next(std::string& name);

  // Whether the next name is there as a whole, so that Next need not wait for it.
  bool HasNext() const { return unread_.find(delimiter_) != std::string_view::npos; }

  // From another thread: makes a Next that waits for input return soon, as at the end of the input.
  void Interrupt() { interrupted_ = true; }

  // How many bytes are left when standard input is a file; none when nobody can know.
  static std::optional<std::uint64_t> BytesLeft();

 private:
  bool AwaitInput() const;
  bool Fill();

  char delimiter_;
  int descriptor_;
  std::vector<char> buffer_;
  std::string_view unread_;
  std::atomic<bool> interrupted_{false};
  std::function<void()> on_pause_;
};

// Standard output, buffered; what could not be written throws StreamError or ReaderGone, at the latest in
// Flush.
class Output {
 public:
  explicit Output(bool flush_each_write) : flush_each_write_(flush_each_write) {}

  void Write(std::string_view text);
  void Flush();

 private:
  bool flush_each_write_;
};

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_STREAMS_H_
