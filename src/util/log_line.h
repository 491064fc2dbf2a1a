/// \file
/// Log records as lines of text.
#ifndef KAVRIX_UTIL_LOG_LINE_H_
#define KAVRIX_UTIL_LOG_LINE_H_

#include <iosfwd>
#include <mutex>
#include <string>
#include <string_view>

#include "export.h"
#include "tagged_log.h"

namespace kavrix::logging {

/// Returns a text with everything escaped that could end the line, begin another or move the cursor, so that
/// resource names, which anyone may have written, forge no line:
///
///     \n \r \t            newline, carriage return, tab
///     \u001b \u0085 ...   other control characters, line separators, direction marks
///     \xff ...            a byte that is not UTF-8
///
/// A backslash stays as it is: names in JSON are found in the log as they were, and the escapes of control
/// characters inside their strings are read as those characters.
KAVRIX_EXPORT std::string EscapeLogText(std::string_view text);

/// Returns the log record as one line, without the newline:
///
///     failure KavrixMapLayerMgr GetBubbleDrawDescriptor map_resource_transform.cpp:22 [Kavrix][main-map]...
///
/// All of it is escaped as by EscapeLogText, and the backslash too, as `\\`, so that the line shows exactly
/// what the log record held. In the four fields before the message a blank is `\x20`.
KAVRIX_EXPORT std::string FormatLogLine(const LogRecord& record);

/// A sink that writes the lines to a stream, each in one piece under its own lock. Set std::unitbuf on the
/// stream to flush every line.
class KAVRIX_EXPORT StreamSink : public LogSink {
 public:
  /// Writes to that stream, which must outlive the sink. Log records begun before the sink's removal keep the
  /// sink alive: see SetLoggerInstance.
  explicit StreamSink(std::ostream& stream) : stream_(stream) {}

  /// Writes one line, as FormatLogLine returns it.
  void Write(const LogRecord& record) override;

 private:
  std::mutex mutex_;
  std::ostream& stream_;  // guarded by mutex_
};

}  // namespace kavrix::logging

#endif  // KAVRIX_UTIL_LOG_LINE_H_
