#include "util/log_line.h"

#include "util/escape.h"

namespace kavrix::logging {
namespace {

// Writes `replacement` for each `c` of the text, and the rest escaped.
void AppendReplaced(std::string& line, std::string_view text, char c, std::string_view replacement) {
  for (std::size_t at = text.find(c); at != std::string_view::npos; at = text.find(c)) {
    AppendEscaped(line, text.substr(0, at));
    line += replacement;
    text.remove_prefix(at + 1);
  }
  AppendEscaped(line, text);
}

// Escapes blanks too: a blank ends the field.
void AppendField(std::string& line, std::string_view text) { AppendReplaced(line, text, ' ', "\\x20"); }

}  // namespace

std::string EscapeLogText(std::string_view text) {
  std::string escaped;
  AppendReplaced(escaped, text, '\\', "\\");
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
