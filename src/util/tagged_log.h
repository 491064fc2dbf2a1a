#ifndef KAVRIX_UTIL_TAGGED_LOG_H_
#define KAVRIX_UTIL_TAGGED_LOG_H_

#include <atomic>
#include <cstdint>
#include <functional>
#include <iomanip>
#include <ios>
#include <memory>
#include <ostream>
#include <streambuf>
#include <string>

// Log records with a tag, filtered by level and tag before anything of the message is evaluated. A sink
// receives the finished records; util/tagged_log_plog.h makes one of any plog appender or logger,
// util/log_line.h one of any stream.
namespace kavrix::logging {

enum class LogLevel {
  kRoutine = 0,  // what was received, what was built
  kFailure = 1,  // a name that cannot be used, a payload that does not parse
};

// One record as a sink sees it; the references hold for the length of the call.
struct LogRecord {
  LogLevel level;
  const std::string& tag;
  const char* function;  // unqualified
  const char* file;      // without folders
  unsigned long line;
  const std::string& message;
};

class LogSink {
 public:
  virtual ~LogSink() = default;
  // Called on the decoding thread with no lock held, possibly by several threads at once: the sink locks
  // itself. It may decode names of its own. What it throws is dropped with the record.
  virtual void Write(const LogRecord& record) = 0;
};

// Where the records of one instance go, and which.
struct LoggerInstance {
  std::shared_ptr<LogSink> sink;
  LogLevel least_level = LogLevel::kRoutine;               // kFailure leaves routine records out
  std::function<bool(const std::string& tag)> tag_filter;  // true lets a tag pass; empty: all pass
};

// The instance that records go to: one number for the whole process, 0 at first. Set by the client at any
// time.
extern std::atomic<std::uint32_t> kavrix_log_instance_id_;

// Installs, replaces or, with a null sink, removes an instance. Removing does not throw. Records begun before
// still reach their old sink, also after this returned; the sink and the filter are destroyed after the last
// of them, perhaps on the thread that wrote it, with no lock held. An instance that is still installed when
// the process ends is never destroyed, so that static destructors may log: remove a sink that flushes in its
// destructor.
void SetLoggerInstance(std::uint32_t instance_id, LoggerInstance instance);

class Logger {
 public:
  // True when a record of this level and tag would be written by that instance. A filter that throws says no.
  static bool TestLogLevelAndTag(std::uint32_t instance_id, LogLevel level, const std::string& tag) noexcept;
};

// The text of a message and the stream that writes it. A stream swallows what its buffer throws and is silent
// from then on; this one lets it through, such as std::bad_alloc, and keeps what was written before.
class MessageBuffer : private std::streambuf {
 public:
  MessageBuffer();
  std::ostream& Stream() { return stream_; }
  const std::string& text() const { return text_; }

 private:
  int_type overflow(int_type c) override;
  std::streamsize xsputn(const char* bytes, std::streamsize count) override;
  template <class Append>
  void LetThrough(Append append);

  std::string text_;
  std::ostream stream_{this};
};

// A record being written. Its destructor completes it and hands it to the instance's sink. An exception while
// the message is written, such as std::bad_alloc, leaves the statement; the record is then delivered with
// what was written until there. The destructor itself needs no memory and never throws.
class Record {
 public:
  // `tag` must outlive the record.
  Record(LogLevel level, const char* function, unsigned long line, const char* file,
         std::uint32_t instance_id, const std::string& tag);
  Record(const Record&) = delete;
  Record& operator=(const Record&) = delete;
  ~Record();

  // Numbers print as in the C locale, whatever the process is set to.
  std::ostream& Stream() { return message_.Stream(); }

 private:
  const LogLevel level_;
  const char* const function_;
  const unsigned long line_;
  const char* const file_;
  const std::string& tag_;
  const std::shared_ptr<const LoggerInstance> instance_;  // null when there is none with that id
  MessageBuffer message_;
};

constexpr const char* BaseName(const char* path) {
  const char* base = path;
  for (const char* c = path; *c != '\0'; ++c) {
    if (*c == '/' || *c == '\\') base = c + 1;
  }
  return base;
}

}  // namespace kavrix::logging

// Writes one record from a member function of a class with a `context_` member. `tag` is an identifier that
// begins with "LogTag"; the tag is its text less those 6 characters. `insertions` is what would stand between
// a stream and the semicolon. The instance is loaded once for the filter and once for the record, so that a
// change between the two is taken up at once.
#define KAVRIX_LOG(tag, level, insertions) KAVRIX_LOG_IN(__func__, tag, level, insertions)

// The same from a lambda, whose own name is of no use: `function` is the __func__ of the function around it.
// NOLINTBEGIN(bugprone-macro-parentheses): insertions cannot stand in parentheses
#define KAVRIX_LOG_IN(function, tag, level, insertions)                                                   \
  do {                                                                                                    \
    namespace kavrix_logging = ::kavrix::logging;                                                         \
    if (kavrix_logging::Logger::TestLogLevelAndTag(kavrix_logging::kavrix_log_instance_id_.load(), level, \
                                                   std::string(&#tag[6]))) {                              \
      constexpr const char* kavrix_file = kavrix_logging::BaseName(__FILE__);                             \
      const std::uint32_t kavrix_instance_id = kavrix_logging::kavrix_log_instance_id_.load();            \
      const std::string kavrix_tag(&#tag[6]);                                                             \
      kavrix_logging::Record kavrix_record(level, function, __LINE__, kavrix_file, kavrix_instance_id,    \
                                           kavrix_tag);                                                   \
      kavrix_record.Stream() << "[Kavrix][" << context_->context_name << "]" << std::fixed                \
                             << std::setprecision(6) << insertions;                                       \
    }                                                                                                     \
  } while (false)
// NOLINTEND(bugprone-macro-parentheses)

#endif  // KAVRIX_UTIL_TAGGED_LOG_H_
