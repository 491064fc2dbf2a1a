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

/// Returns a text with everything escaped that could end the line, begin another or move the cursor, and the
/// backslash too: the result shows exactly what the text held. Resource names, which anyone may have written,
/// forge no line then:
///
///     \\                  a backslash
///     \n \r \t            newline, carriage return, tab
///     \u001b \u0085 ...   any other control character, line separators, and what turns the direction of
///     writing \xff ...            a byte that is not UTF-8
KAVRIX_EXPORT std::string EscapeLogText(std::string_view text);

/// Returns the log record as one line, without the newline:
///
///     failure KavrixMapLayerMgr GetBubbleDrawDescriptor map_resource_transform.cpp:22 [Kavrix][main-map]...
///
/// All of it is escaped as by EscapeLogText; in the four fields before the message the blank is too, as
/// `\x20`.
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
