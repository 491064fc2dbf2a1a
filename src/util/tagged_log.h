/// \file
/// Log records with a tag, and where they go.
#ifndef KAVRIX_UTIL_TAGGED_LOG_H_
#define KAVRIX_UTIL_TAGGED_LOG_H_

#include <atomic>
#include <cstdint>
#include <functional>
#include <ios>
#include <memory>
#include <ostream>
#include <streambuf>
#include <string>

#include "export.h"

/// Log records with a tag, filtered by level and tag before any part of the message is evaluated. A sink
/// receives the finished log records; util/tagged_log_plog.h makes a sink of any plog appender or logger,
/// util/log_line.h of any stream.
namespace kavrix::logging {

/// How severe a log record is.
enum class LogLevel {
  kRoutine = 0,  ///< what was received, what was built
  kFailure = 1,  ///< a name that cannot be used, a payload that does not parse; also every good payload of an
                 ///< underground-park, force-dot or force-poll bubble
};

/// One log record as a sink sees it. The references are valid only during the call.
struct LogRecord {
  LogLevel level;                 ///< routine or failure
  const std::string& tag;         ///< the area that wrote it, such as "KavrixMapLayerMgr_RouteLabel"
  const char* function;           ///< unqualified name of the function that wrote it
  const char* file;               ///< its source, without folders
  unsigned long line;             ///< line of the log statement in the source
  const std::string& message;     ///< exactly what was written: a name in it may hold any bytes
  std::uint32_t instance_id = 0;  ///< the instance that the log record was written to
};

/// Receives log records. A client derives its own, or takes StreamSink or PlogSink.
class KAVRIX_EXPORT LogSink {
 public:
  /// Runs on the thread that lets go of the sink last: see SetLoggerInstance.
  virtual ~LogSink();

  /// Takes one log record. Called on the decoding thread with no lock held, possibly by several threads at
  /// once: the sink locks itself. It may decode names itself. What it throws is dropped together with the log
  /// record.
  virtual void Write(const LogRecord& record) = 0;
};

/// Where the log records of one instance go, and which ones pass.
struct LoggerInstance {
  std::shared_ptr<LogSink> sink;                           ///< takes what passes; null: no instance
  LogLevel least_level = LogLevel::kRoutine;               ///< kFailure: only failures pass
  std::function<bool(const std::string& tag)> tag_filter;  ///< true lets a tag pass; empty: all pass
};

/// The id of the instance that log records go to, for the whole process. 0 at first; clients may set it at
/// any time.
KAVRIX_EXPORT extern std::atomic<std::uint32_t> kavrix_log_instance_id_;

/// Installs, replaces or, with a null sink, removes an instance. Removing does not throw. Records begun
/// before still reach their old sink, also after this returned; the sink and the filter are destroyed after
/// the last of them, perhaps on the thread that wrote it, with no lock held. An instance that is still
/// installed when the process ends is never destroyed, so that static destructors may log: remove a sink that
/// flushes in its destructor.
KAVRIX_EXPORT void SetLoggerInstance(std::uint32_t instance_id, LoggerInstance instance);

/// Answers for the installed instances.
class KAVRIX_EXPORT Logger {
 public:
  /// Returns whether that instance takes log records of this level and tag. A filter that throws counts as
  /// false.
  static bool TestLogLevelAndTag(std::uint32_t instance_id, LogLevel level, const std::string& tag) noexcept;
};

/// The text of a message and the stream that writes it. A plain stream swallows what its buffer throws and is
/// silent from then on. This one lets exceptions such as std::bad_alloc through and keeps what was written
/// before.
class KAVRIX_EXPORT MessageBuffer : private std::streambuf {
 public:
  /// Begins an empty text, with room for most messages.
  MessageBuffer();
  /// Returns the stream that appends to the text.
  std::ostream& Stream() { return stream_; }
  /// Returns what was written so far.
  const std::string& text() const { return text_; }

 private:
  int_type overflow(int_type c) override;
  std::streamsize xsputn(const char* bytes, std::streamsize count) override;
  template <class Append>
  void LetThrough(Append append);

  std::string text_;
  std::ostream stream_{this};
};

/// A log record being written. Its destructor hands it to the instance's sink. An exception in the message,
/// such as std::bad_alloc, leaves the log statement; the sink then gets what was written until there. The
/// destructor itself needs no memory and never throws.
class KAVRIX_EXPORT Record {
 public:
  /// Begins a log record of the instance that has the id now. `function`, `file` and `tag` must outlive the
  /// object.
  Record(LogLevel level, const char* function, unsigned long line, const char* file,
         std::uint32_t instance_id, const std::string& tag);
  /// Not copied: a log record is delivered once.
  Record(const Record&) = delete;
  /// Not assigned: a log record is delivered once.
  Record& operator=(const Record&) = delete;
  /// Delivers the log record, if an instance had that id when it began.
  ~Record();

  /// Returns the stream of the message. Numbers print as in the classic locale, whatever the global one is.
  std::ostream& Stream() { return message_.Stream(); }

  /// Writes the head of the message, "[Kavrix][context name]", and returns its stream. Floats after it have
  /// six decimals.
  std::ostream& Begin(const std::string& context_name);

 private:
  const LogLevel level_;
  const char* const function_;
  const unsigned long line_;
  const char* const file_;
  const std::string& tag_;
  const std::uint32_t instance_id_;
  const std::shared_ptr<const LoggerInstance> instance_;  // null when no instance has that id
  MessageBuffer message_;
};

/// Returns the part of a path after its last slash or backslash.
constexpr const char* BaseName(const char* path) {
  const char* base = path;
  for (const char* c = path; *c != '\0'; ++c) {
    if (*c == '/' || *c == '\\') base = c + 1;
  }
  return base;
}

}  // namespace kavrix::logging

/// Writes one log record, from a member function of a class with a `context_` member. `tag` is an identifier
/// that begins with "LogTag"; the tag is the identifier without those 6 characters. `insertions` is what
/// follows "stream <<": a << b. The instance id is loaded once for the filter and once for the log record, so
/// that a change between the two takes effect at once.
#define KAVRIX_LOG(tag, level, insertions) KAVRIX_LOG_IN(__func__, tag, level, insertions)

// NOLINTBEGIN(bugprone-macro-parentheses): a << b cannot be put in parentheses
/// Does the same from a lambda, where `__func__` is of no use: `function` is the `__func__` of the enclosing
/// function.
#define KAVRIX_LOG_IN(function, tag, level, insertions)                                                   \
  do {                                                                                                    \
    namespace kavrix_logging = ::kavrix::logging;                                                         \
    const std::string kavrix_tag(&#tag[6]);                                                               \
    if (kavrix_logging::Logger::TestLogLevelAndTag(kavrix_logging::kavrix_log_instance_id_.load(), level, \
                                                   kavrix_tag)) {                                         \
      constexpr const char* kavrix_file = kavrix_logging::BaseName(__FILE__);                             \
      const std::uint32_t kavrix_instance_id = kavrix_logging::kavrix_log_instance_id_.load();            \
      kavrix_logging::Record kavrix_record(level, function, __LINE__, kavrix_file, kavrix_instance_id,    \
                                           kavrix_tag);                                                   \
      kavrix_record.Begin(context_->context_name) << insertions;                                          \
    }                                                                                                     \
  } while (false)
// NOLINTEND(bugprone-macro-parentheses)

#endif  // KAVRIX_UTIL_TAGGED_LOG_H_
