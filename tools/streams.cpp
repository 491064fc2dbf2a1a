#include "tools/streams.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <vector>

namespace kavrix::tools {
namespace {

constexpr std::size_t kLargestFile = 16 << 20;

[[noreturn]] void Fail(const std::string& what, int error) {
  throw StreamError(what + ": " + std::strerror(error));
}

[[noreturn]] void FailToWrite() {
  if (errno == EPIPE) throw ReaderGone();
  Fail("cannot write standard output", errno);
}

std::string ReadAll(std::FILE* file, const std::string& what) {
  std::string text;
  std::vector<char> buffer(1 << 16);
  while (const std::size_t size = std::fread(buffer.data(), 1, buffer.size(), file)) {
    text.append(buffer.data(), size);
    if (text.size() > kLargestFile) throw StreamError("cannot read " + what + ": larger than 16 MiB");
  }
  if (std::ferror(file) != 0) Fail("cannot read " + what, errno);
  return text;
}

}  // namespace

std::string ReadFile(const std::string& path) {
  struct stat status = {};
  if (::stat(path.c_str(), &status) != 0) Fail("cannot open " + path, errno);
  // Asked before it is opened, which may do something to a device.
  if (!S_ISREG(status.st_mode) && !S_ISFIFO(status.st_mode)) {
    throw StreamError("cannot read " + path + ": neither a regular file nor a pipe");
  }
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"), std::fclose);
  if (file == nullptr) Fail("cannot open " + path, errno);
  return ReadAll(file.get(), path);
}

std::string ReadStandardInput() { return ReadAll(stdin, "standard input"); }

std::optional<std::uint64_t> BytesLeft(int descriptor) {
  struct stat status = {};
  if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
  const off_t read = ::lseek(descriptor, 0, SEEK_CUR);
  if (read < 0 || read > status.st_size) return std::nullopt;
  return static_cast<std::uint64_t>(status.st_size - read);
}

void Output::Write(std::string_view text) {
  if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size()) FailToWrite();
  if (flush_each_write_) Flush();
}

void Output::Flush() {
  if (std::fflush(stdout) != 0) FailToWrite();
}

}  // namespace kavrix::tools
