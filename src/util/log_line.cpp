#include "util/log_line.h"

#include "util/escape.h"

namespace kavrix::logging {
namespace {

// Escapes blanks too: a blank ends the field.
void AppendField(std::string& line, std::string_view text) {
  for (std::size_t blank = text.find(' '); blank != std::string_view::npos; blank = text.find(' ')) {
    AppendEscaped(line, text.substr(0, blank));
    line += "\\x20";
    text.remove_prefix(blank + 1);
  }
  AppendEscaped(line, text);
}

}  // namespace

std::string EscapeLogText(std::string_view text) {
  std::string escaped;
  AppendEscaped(escaped, text);
  return escaped;
}

std::string FormatLogLine(const LogRecord& record) {
  std::string line = record.level == LogLevel::kRoutine ? "routine " : "failure ";
  AppendField(line, record.tag);
  line += ' ';
  AppendField(line, record.function);
  line += ' ';
  AppendField(line, record.file);
  line += ':' + std::to_string(record.line) + ' ';
  AppendEscaped(line, record.message);
  return line;
}

void StreamSink::Write(const LogRecord& record) {
  const std::string line = FormatLogLine(record) + '\n';
  const std::lock_guard<std::mutex> lock(mutex_);
  stream_.write(line.data(), static_cast<std::streamsize>(line.size()));
}

}  // namespace kavrix::logging
