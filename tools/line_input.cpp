#include "tools/line_input.h"

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "tools/streams.h"

namespace kavrix::tools {

std::string_view LineInput::Next() {
  is_cut_ = false;
  std::size_t searched = begin_;
  for (;;) {
    const std::string_view unsearched(buffer_.data() + searched, end_ - searched);
    const std::size_t last = unsearched.rfind(options_.delimiter);
    if (last != std::string_view::npos) return Take(searched + last + 1);
    if (end_ - begin_ >= options_.longest_line) {
      is_cut_ = true;
      return Take(begin_ + options_.longest_line);
    }
    MakeRoom();
    searched = end_;
    if (!Read()) return Take(end_);
  }
}

// Returns what was read up to `end`.
std::string_view LineInput::Take(std::size_t end) {
  const std::string_view lines(buffer_.data() + begin_, end - begin_);
  begin_ = end;
  return lines;
}

void LineInput::MakeRoom() {
  if (begin_ > 0) {
    std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
    end_ -= begin_;
    begin_ = 0;
  }
  if (end_ == buffer_.size()) buffer_.resize(2 * buffer_.size());
}

// False when interrupted. What is wrong with the input is for the read to tell.
bool LineInput::AwaitInput() const {
  constexpr int kMillisecondsToInterruption = 100;
  pollfd input = {descriptor_, POLLIN, 0};
  if (on_pause_ && ::poll(&input, 1, 0) == 0) on_pause_();
  while (!interrupted_) {
    const int ready = ::poll(&input, 1, kMillisecondsToInterruption);
    if (ready > 0 || (ready < 0 && errno != EINTR)) return true;
  }
  return false;
}

// Reads what is there. False at the end of the input.
bool LineInput::Read() {
  if (!AwaitInput()) return false;
  ssize_t size = 0;
  do {
    size = ::read(descriptor_, buffer_.data() + end_, buffer_.size() - end_);
  } while (size < 0 && errno == EINTR);
  if (size < 0) throw StreamError("cannot read " + what_ + ": " + std::strerror(errno));
  end_ += static_cast<std::size_t>(size);
  return size > 0;
}

}  // namespace kavrix::tools
