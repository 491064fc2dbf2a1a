#ifndef KAVRIX_UTIL_LOG_LINE_H_
#define KAVRIX_UTIL_LOG_LINE_H_

#include <iosfwd>
#include <mutex>
#include <string>

#include "export.h"
#include "tagged_log.h"

namespace kavrix::logging {

// Returns the log record as one line, without the newline:
//
//   failure KavrixMapLayerMgr GetBubbleDrawDescriptor map_resource_transform.cpp:22 [Kavrix][main-map]...
//
// The message holds resource names, which anyone may have written. Characters that could end the line, begin
// another or move the cursor are escaped, and so is the backslash, so that the line still shows exactly what
// the log record held:
//
//   \\                  a backslash
//   \n \r \t            newline, carriage return, tab
//   \u001b \u0085 ...   any other control character, line separators, and what turns the direction of writing
//   \xff ...            a byte that is not UTF-8; in the four fields before the message also the blank, \x20
KAVRIX_EXPORT std::string FormatLogLine(const LogRecord& record);

// A sink that writes the lines to a stream, each in one piece under its own lock. The stream must outlive the
// sink, which log records begun before its removal keep alive: see SetLoggerInstance. Set std::unitbuf on the
// stream to flush every line.
class KAVRIX_EXPORT StreamSink : public LogSink {
 public:
  explicit StreamSink(std::ostream& stream) : stream_(stream) {}

  void Write(const LogRecord& record) override;

 private:
  std::mutex mutex_;
  std::ostream& stream_;  // guarded by mutex_
};

}  // namespace kavrix::logging

#endif  // KAVRIX_UTIL_LOG_LINE_H_
