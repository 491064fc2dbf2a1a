// Fuzzes the tool's reader of lines: the first byte of the input picks the delimiter and the buffer size, the
// second the longest line, the rest is the stream.

#include <sys/mman.h>
#include <unistd.h>

#include <atomic>

#include "fuzz/fuzzing.h"
#include "tools/line_input.h"

namespace kavrix::fuzz {
namespace {

int OpenStream(std::string_view text) {
  static const int file = ::memfd_create("names", 0);
  Require(file >= 0 && ::ftruncate(file, 0) == 0, "a file in memory can be had");
  Require(::pwrite(file, text.data(), text.size(), 0) == static_cast<ssize_t>(text.size()),
          "it can be filled");
  Require(::lseek(file, 0, SEEK_SET) == 0, "it can be read from its beginning");
  return file;
}

// Each block must hold whole lines, and all of them together the stream.
void RequireWholeLines(tools::LineInput& input, std::string_view text,
                       const tools::LineInput::Options& options) {
  for (std::string_view lines = input.Next(); !lines.empty(); lines = input.Next()) {
    Require(text.substr(0, lines.size()) == lines, "nothing is lost, changed or moved");
    text.remove_prefix(lines.size());
    if (input.IsCut()) {
      Require(lines.size() == options.longest_line, "only a line that is too long is cut");
    } else {
      Require(lines.back() == options.delimiter || text.empty(), "only the last line lacks its delimiter");
    }
  }
  Require(text.empty(), "all of the stream is read");
}

}  // namespace
}  // namespace kavrix::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kavrix;
  if (size < 2) return -1;
  tools::LineInput::Options options;
  options.delimiter = data[0] % 2 == 0 ? '\n' : '\0';
  options.buffer_size = 1 + data[0] / 2;
  options.longest_line = 1 + data[1];
  const std::string_view text = fuzz::AsText(data + 2, size - 2);
  const std::atomic<bool> interrupted{false};
  tools::LineInput input(fuzz::OpenStream(text), "the stream", options, interrupted);
  fuzz::RequireWholeLines(input, text, options);
  return 0;
}
