#ifndef KAVRIX_TOOLS_STREAMS_H_
#define KAVRIX_TOOLS_STREAMS_H_

#include <cstdint>
#include <exception>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace kavrix::tools {

// A file or stream that could not be read or written; the text says which and why.
class StreamError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Nobody reads standard output any more, as after "| head". The tool then ends without a word.
class ReaderGone : public std::exception {};

// Trouble that the user was told of when it came. The tool goes on as far as it can, and ends with status 2.
class ToldTrouble : public std::exception {};

// All that a regular file or a pipe holds. Throws StreamError, for more than 16 MiB and for other files
// (devices, folders, sockets) too.
std::string ReadFile(const std::string& path);

// All of standard input, whatever it is. Throws as ReadFile.
std::string ReadStandardInput();

// How many bytes are left to read from an open regular file; none for other inputs, where nobody can know.
std::optional<std::uint64_t> BytesLeft(int descriptor);

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
