#include "util/log_line.h"

#include <string_view>

#include "util/utf8.h"

namespace kavrix::logging {
namespace {

void AppendHex(std::string& line, unsigned number, int digits) {
  for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4)
    line += "0123456789abcdef"[number >> shift & 0xF];
}

void AppendBytes(std::string& line, std::string_view bytes) {
  for (const char byte : bytes) {
    line += "\\x";
    AppendHex(line, static_cast<unsigned char>(byte), 2);
  }
}

void AppendControl(std::string& line, char32_t c) {
  if (c == '\n') {
    line += "\\n";
  } else if (c == '\r') {
    line += "\\r";
  } else if (c == '\t') {
    line += "\\t";
  } else {
    line += "\\u";
    AppendHex(line, c, 4);
  }
}

void AppendEscaped(std::string& line, std::string_view text) {
  while (!text.empty()) {
    const Utf8Piece piece = NextUtf8(text);
    const std::string_view bytes = text.substr(0, piece.length);
    if (!piece.is_valid) {
      AppendBytes(line, bytes);
    } else if (IsControl(piece.code_point)) {
      AppendControl(line, piece.code_point);
    } else if (piece.code_point == '\\') {
      line += "\\\\";
    } else {
      line += bytes;
    }
    text.remove_prefix(piece.length);
  }
}

// A field ends at the next blank, so it has none itself.
void AppendField(std::string& line, std::string_view text) {
  for (std::size_t blank = text.find(' '); blank != std::string_view::npos; blank = text.find(' ')) {
    AppendEscaped(line, text.substr(0, blank));
    AppendBytes(line, " ");
    text.remove_prefix(blank + 1);
  }
  AppendEscaped(line, text);
}

}  // namespace

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
