#include "tools/progress.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <cmath>
#include <cstdio>

namespace kavrix::tools {
namespace {

// How much of a line the terminal shows without wrapping it; all where it does not tell its width. The last
// column stays empty, because some terminals wrap as soon as it is filled.
std::size_t MostColumns() {
  winsize size = {};
  const bool is_known = ::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
  return is_known ? size.ws_col - 1U : std::string::npos;
}

// In place of what stands on the line. A terminal that cannot be written to is no reason to end the work.
void Draw(const std::string& text) {
  (void)std::fputs(("\r\x1b[K" + text.substr(0, MostColumns())).c_str(), stderr);
}

std::string TwoDigits(std::uint64_t number) { return (number < 10 ? "0" : "") + std::to_string(number); }

std::string ClockText(std::uint64_t seconds) {
  const std::uint64_t minutes = seconds / 60;
  const std::string hours = minutes < 60 ? "" : std::to_string(minutes / 60) + ":";
  return hours + (hours.empty() ? std::to_string(minutes) : TwoDigits(minutes % 60)) + ":" +
         TwoDigits(seconds % 60);
}

std::uint64_t Whole(double number) { return static_cast<std::uint64_t>(std::llround(number)); }

}  // namespace

std::string ProgressText(const ProgressCounts& counts, double seconds) {
  std::string text = std::to_string(counts.names) + " names, " +
                     std::to_string(Whole(static_cast<double>(counts.names) / seconds)) + " a second, " +
                     std::to_string(counts.failed) + " failed";
  if (counts.all_bytes && counts.bytes > 0 && counts.bytes <= *counts.all_bytes) {
    const auto bytes_left = static_cast<double>(*counts.all_bytes - counts.bytes);
    text += ", " + ClockText(Whole(seconds * bytes_left / static_cast<double>(counts.bytes))) + " left";
  }
  return text;
}

Progress::Progress(bool shown, std::optional<std::uint64_t> all_bytes) : shown_(shown) {
  counts_.all_bytes = all_bytes;
  next_draw_ = begin_ + std::chrono::seconds(2);
}

Progress::~Progress() {
  if (drawn_) Draw("");
}

void Progress::Add(std::size_t names, std::size_t failed, std::size_t bytes) {
  if (!shown_) return;
  counts_.names += names;
  counts_.failed += failed;
  counts_.bytes += bytes;
  const Clock::time_point now = Clock::now();
  if (now < next_draw_) return;
  next_draw_ = now + std::chrono::milliseconds(200);
  drawn_ = true;
  const double seconds = std::chrono::duration<double>(now - begin_).count();
  Draw(ProgressText(counts_, seconds));
}

}  // namespace kavrix::tools
