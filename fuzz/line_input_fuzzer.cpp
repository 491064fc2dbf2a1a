// Fuzzes the tool's reader of names: the first byte of the input picks the delimiter and the buffer size, the
// rest is the stream.

#include <sys/mman.h>
#include <unistd.h>

#include <vector>

#include "fuzz/fuzzing.h"
#include "tools/streams.h"

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

std::vector<std::string> ExpectedNames(std::string_view text, char delimiter) {
  std::vector<std::string> names;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(delimiter), text.size());
    std::string name(text.substr(0, end));
    if (delimiter == '\n' && !name.empty() && name.back() == '\r') name.pop_back();
    names.push_back(name);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return names;
}

}  // namespace
}  // namespace kavrix::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kavrix;
  if (size == 0) return -1;
  const char delimiter = *data % 2 == 0 ? '\n' : '\0';
  const std::size_t buffer_size = 1 + *data / 2;
  const std::string_view text = fuzz::AsText(data + 1, size - 1);
  tools::NameInput input(delimiter, fuzz::OpenStream(text), buffer_size);
  std::vector<std::string> names;
  for (std::string name; input.Next(name);) names.push_back(name);
  fuzz::Require(names == fuzz::ExpectedNames(text, delimiter), "the names are the pieces of the stream");
  return 0;
}
