#include "tools/streams.h"

#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

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
  std::string text;
  std::vector<char> buffer(1 << 16);
  while (const std::size_t size = std::fread(buffer.data(), 1, buffer.size(), file.get())) {
    text.append(buffer.data(), size);
    if (text.size() > kLargestFile) throw StreamError("cannot read " + path + ": larger than 16 MiB");
  }
  if (std::ferror(file.get()) != 0) Fail("cannot read " + path, errno);
  return text;
}

// False when interrupted. What is wrong with the input is for the read to tell.
bool NameInput::AwaitInput() const {
  constexpr int kMillisecondsToInterruption = 100;
  pollfd input = {descriptor_, POLLIN, 0};
  if (on_pause_ && ::poll(&input, 1, 0) == 0) on_pause_();
  while (!interrupted_) {
    const int ready = ::poll(&input, 1, kMillisecondsToInterruption);
    if (ready > 0 || (ready < 0 && errno != EINTR)) return true;
  }
  return false;
}

bool NameInput::Fill() {
  if (!AwaitInput()) return false;
  ssize_t size = 0;
  do {
    size = ::read(descriptor_, buffer_.data(), buffer_.size());
  } while (size < 0 && errno == EINTR);
  if (size < 0) Fail("cannot read standard input", errno);
  unread_ = std::string_view(buffer_.data(), static_cast<std::size_t>(size));
  return size > 0;
}

bool NameInput::Next(std::string& name) {
  name.clear();
  if (unread_.empty() && !Fill()) return false;
  for (;;) {
    const std::size_t end = unread_.find(delimiter_);
    name += unread_.substr(0, end);
    if (end != std::string_view::npos) {
      unread_.remove_prefix(end + 1);
      break;
    }
    unread_ = {};
    if (!Fill()) break;
  }
  if (delimiter_ == '\n' && !name.empty() && name.back() == '\r') name.pop_back();
  return true;
}

std::optional<std::uint64_t> NameInput::BytesLeft() {
  struct stat status = {};
  if (::fstat(STDIN_FILENO, &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
  const off_t read = ::lseek(STDIN_FILENO, 0, SEEK_CUR);
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
