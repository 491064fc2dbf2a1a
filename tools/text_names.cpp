#include "tools/text_names.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>

#include "inspect/text_search.h"
#include "tools/error_line.h"
#include "tools/line_input.h"
#include "tools/streams.h"

namespace kavrix::tools {
namespace {

using inspect::StartsWith;

constexpr std::size_t kLongestLine = std::size_t{1} << 28;

// "-" is standard input.
class OpenFile {
 public:
  explicit OpenFile(const std::string& path)
      : is_file_(path != "-"),
        descriptor_(is_file_ ? ::open(path.c_str(), O_RDONLY | O_CLOEXEC) : STDIN_FILENO) {
    if (descriptor_ < 0) throw StreamError("cannot open " + path + ": " + std::strerror(errno));
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() {
    if (is_file_) ::close(descriptor_);
  }

  int descriptor() const { return descriptor_; }

 private:
  const bool is_file_;
  const int descriptor_;
};

std::string InMessages(const std::string& path) { return path == "-" ? "standard input" : path; }

// The size of all files; none when that of one is unknown. A pipe is not opened for it: what was written to
// it could be lost.
std::optional<std::uint64_t> SizeOf(const std::vector<std::string>& paths) {
  std::uint64_t size = 0;
  for (const std::string& path : paths) {
    if (path == "-") {
      const std::optional<std::uint64_t> bytes = BytesLeft(STDIN_FILENO);
      if (!bytes) return std::nullopt;
      size += *bytes;
      continue;
    }
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) return std::nullopt;
    const std::uintmax_t bytes = std::filesystem::file_size(path, error);
    if (error) return std::nullopt;
    size += bytes;
  }
  return size;
}

// What a file is that is no text and hides the names in it, by its first bytes; empty for others.
const char* HidingFormat(std::string_view first) {
  using namespace std::string_view_literals;
  constexpr std::pair<std::string_view, const char*> kFormats[] = {
      {"\x1F\x8B"sv, "compressed by gzip; read it with zcat"},
      {"\x28\xB5\x2F\xFD"sv, "compressed by zstd; read it with zstdcat"},
      {"\xFD"
       "7zXZ\0"sv,
       "compressed by xz; read it with xzcat"},
      {"\xFF\xFE"sv, "UTF-16; read it with iconv -f UTF-16 -t UTF-8"},
      {"\xFE\xFF"sv, "UTF-16; read it with iconv -f UTF-16 -t UTF-8"},
  };
  constexpr std::string_view kBzip2 = "BZh";  // then the level, a digit, and the beginning of a block
  const bool is_bzip2 = StartsWith(first, kBzip2) && first.size() > kBzip2.size() &&
                        StartsWith(first.substr(kBzip2.size() + 1), "1AY&SY");
  if (is_bzip2) return "compressed by bzip2; read it with bzcat";
  for (const auto& [magic, format] : kFormats) {
    if (StartsWith(first, magic)) return format;
  }
  return "";
}

}  // namespace

// The file that is read.
struct TextNames::File {
  File(const std::string& given_path, const Options& options, const std::atomic<bool>& interrupted)
      : path(given_path),
        file(given_path),
        input(file.descriptor(), InMessages(given_path), InputOptions(options), interrupted),
        extractor(options.log_lines) {}

  static LineInput::Options InputOptions(const Options& options) {
    LineInput::Options input_options;
    if (options.null_delimited) input_options.delimiter = '\0';
    if (options.are_logs) input_options.longest_line = kLongestLine;
    return input_options;
  }

  const std::string path;
  const OpenFile file;
  LineInput input;
  inspect::NameExtractor extractor;
  std::uint64_t bytes = 0;  // that were read
  std::size_t lines = 0;    // that were read as names
};

TextNames::TextNames(std::vector<std::string> paths, const Options& options)
    : paths_(std::move(paths)), options_(options), bytes_(SizeOf(paths_)) {}

TextNames::~TextNames() = default;

bool TextNames::Take(std::size_t most, std::vector<InputName>& names) {
  while (names.size() < most) {
    if (next_waiting_ < waiting_.size()) {
      names.push_back(std::move(waiting_[next_waiting_++]));
    } else if (!names.empty() || !Fill()) {
      break;
    }
  }
  return !names.empty();
}

bool TextNames::IsTyped() const {
  const bool reads_standard_input = std::find(paths_.begin(), paths_.end(), "-") != paths_.end();
  return reads_standard_input && isatty(STDIN_FILENO) != 0;
}

// Reads on until a name waits. False at the end of the last file.
bool TextNames::Fill() {
  waiting_.clear();
  next_waiting_ = 0;
  while (waiting_.empty() && !interrupted_) {
    if (file_ == nullptr && !OpenNext()) return false;
    try {
      const std::string_view lines = file_->input.Next();
      if (lines.empty()) {
        file_ = nullptr;
        continue;
      }
      if (file_->bytes == 0) RequireText(lines);
      options_.are_logs ? ReadLog(lines) : ReadLines(lines);
      file_->bytes += lines.size();
      bytes_taken_ += lines.size();
    } catch (const StreamError& error) {
      Tell(error.what());
      file_ = nullptr;
    }
  }
  return !waiting_.empty();
}

// False when there is no further file that can be opened.
bool TextNames::OpenNext() {
  while (next_path_ < paths_.size()) {
    try {
      file_ = std::make_unique<File>(paths_[next_path_++], options_, interrupted_);
      file_->input.SetOnPause(on_pause_);
      return true;
    } catch (const StreamError& error) {
      Tell(error.what());
    }
  }
  return false;
}

void TextNames::ReadLines(std::string_view lines) {
  const char delimiter = options_.null_delimited ? '\0' : '\n';
  while (!lines.empty()) {
    const std::size_t end = std::min(lines.find(delimiter), lines.size());
    std::string_view name = lines.substr(0, end);
    if (delimiter == '\n' && !name.empty() && name.back() == '\r') name.remove_suffix(1);
    Add(std::string(name), ++file_->lines, 0);
    lines.remove_prefix(std::min(end + 1, lines.size()));
  }
}

// Throws StreamError when the file's first bytes say that it is none.
void TextNames::RequireText(std::string_view first) const {
  const char* const format = options_.tells_of_hidden_names ? HidingFormat(first) : "";
  if (*format != '\0') throw StreamError(InMessages(file_->path) + ": no text: it is " + format);
}

void TextNames::ReadLog(std::string_view lines) {
  if (file_->input.IsCut()) {
    Tell(InMessages(file_->path) + ": the line at byte " + std::to_string(file_->bytes) +
         " is longer than 256 MiB; it is read in pieces, as if it ended there");
  }
  std::vector<inspect::ExtractedName> names;
  std::vector<inspect::LineError> errors;
  file_->extractor.Extract(lines, names, errors);
  for (const inspect::LineError& error : errors) {
    Tell(file_->path + ":" + std::to_string(error.line) + ":" + std::to_string(error.error.at) +
         ": not JSON: expected " + error.error.expected);
  }
  for (inspect::ExtractedName& name : names) Add(std::move(name.name), name.line, name.byte);
}

void TextNames::Add(std::string name, std::size_t line, std::size_t byte) {
  if (options_.unique && !seen_.insert(name).second) return;
  waiting_.push_back({std::move(name), ++added_, file_->path, line, byte});
}

void TextNames::Tell(const std::string& message) {
  had_trouble_ = true;
  WriteErrorLine(message);
}

}  // namespace kavrix::tools
