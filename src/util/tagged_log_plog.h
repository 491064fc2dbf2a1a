/// \file
/// Hands the library's log records to plog. The library itself is built without plog: the client compiles
/// this header against its own plog (1.0 or 1.1), so the two never disagree about plog's classes.
#ifndef KAVRIX_UTIL_TAGGED_LOG_PLOG_H_
#define KAVRIX_UTIL_TAGGED_LOG_PLOG_H_

// Logger.h of plog 1.0 needs Record.h before it.
// clang-format off
#include <plog/Record.h>
#include <plog/Logger.h>
// clang-format on

#include <cstddef>
#include <cstdint>
#include <ctime>
#include <iomanip>
#include <locale>
#include <memory>
#include <ostream>
#include <sstream>
#include <string>
#include <type_traits>
#include <utility>

#include "log_line.h"
#include "tagged_log.h"

namespace kavrix::logging {

/// The plog record of one of the library's log records: what an appender or a formatter gets from PlogSink.
class TaggedRecord : public plog::Record {
 public:
  /// Not copied: it is found by its address.
  TaggedRecord(const TaggedRecord&) = delete;
  /// Not assigned: it is found by its address.
  TaggedRecord& operator=(const TaggedRecord&) = delete;
  /// Of no longer finds the record after this.
  ~TaggedRecord() { innermost_ = outer_; }  // NOLINT(modernize-use-override): plog 1.0 has no virtual one

  /// Returns the record as one of the library's, or null when it is a record of the client's own. Needs no
  /// RTTI. Finds records on the thread that wrote them, while an appender has them, and only where this
  /// header is compiled into the same program or shared library as the sink.
  static const TaggedRecord* Of(const plog::Record& record) {
    const TaggedRecord* found = innermost_;
    while (found != nullptr && found != &record) found = found->outer_;
    return found;
  }

  /// Returns the tag, such as "KavrixMapLayerMgr_RouteLabel". Valid as long as the record.
  const std::string& tag() const { return tag_; }

  /// Returns the id of the library's instance that the log record was written to.
  std::uint32_t instance_id() const { return instance_id_; }

 private:
  friend class PlogSink;

  // A template, so that only the form that the client's plog has is compiled.
  template <class... PlogArguments>
  explicit TaggedRecord(const LogRecord& record, PlogArguments... plog_arguments)
      : plog::Record(plog_arguments...),
        tag_(record.tag),
        instance_id_(record.instance_id),
        outer_(innermost_) {
    innermost_ = this;
  }

  // The records that this thread writes: an appender that decodes writes one inside another.
  static inline thread_local const TaggedRecord* innermost_ = nullptr;

  const std::string& tag_;
  const std::uint32_t instance_id_;
  const TaggedRecord* const outer_;
};

/// How PlogSink writes a message.
struct PlogOptions {
  /// Puts the tag before the message, "[Tag] message", for formatters that know no tags. Leave it false with
  /// TaggedTxtFormatter, which prints the tag itself.
  bool tag_in_message = false;
  /// Escapes the message as by EscapeLogText, so that a name with a newline forges no line. When false, the
  /// message arrives as it was written, but for NUL, which would end it: that is `\u0000` always.
  bool escape = true;
};

/// A sink that writes to a plog appender, or to a plog logger, which is an appender too and filters by its
/// own severity. Routine log records arrive as plog::info, failures as plog::error, all as TaggedRecord. plog
/// does not filter by tag: set LoggerInstance::tag_filter. The appender must lock itself if several threads
/// decode.
class PlogSink : public LogSink {
 public:
  /// Writes to an appender that must outlive the sink. Log records begun before the sink's removal keep the
  /// sink alive: see SetLoggerInstance.
  explicit PlogSink(plog::IAppender& appender, PlogOptions options = {})
      : PlogSink(std::shared_ptr<plog::IAppender>(std::shared_ptr<void>(), &appender), options) {}

  /// Writes to an appender, never null, that the sink keeps alive.
  explicit PlogSink(std::shared_ptr<plog::IAppender> appender, PlogOptions options = {})
      : appender_(std::move(appender)), options_(options) {}

  /// Writes one record to the appender, on the calling thread.
  void Write(const LogRecord& record) override {
    // plog takes a function signature and prints what precedes its parenthesis.
    const std::string signature = std::string(record.function) + "()";
    WriteAs<plog::Record>(record, signature.c_str());
  }

 private:
  // plog's constructor grew from (severity, function, line, object) by a file, then by an instance id. This
  // is a template because only a template leaves the branches for other versions uncompiled.
  template <class PlogRecord>
  void WriteAs(const LogRecord& record, const char* signature) {
    const plog::Severity severity = record.level == LogLevel::kRoutine ? plog::info : plog::error;
    const void* const object = nullptr;
    if constexpr (std::is_constructible_v<PlogRecord, plog::Severity, const char*, std::size_t, const char*,
                                          const void*, int>) {
      Deliver(record, severity, signature, record.line, record.file, object,
              static_cast<int>(record.instance_id));
    } else if constexpr (std::is_constructible_v<PlogRecord, plog::Severity, const char*, std::size_t,
                                                 const char*, const void*>) {
      Deliver(record, severity, signature, record.line, record.file, object);
    } else {
      Deliver(record, severity, signature, record.line, object);
    }
  }

  template <class... PlogArguments>
  void Deliver(const LogRecord& record, PlogArguments... plog_arguments) {
    TaggedRecord plog_record(record, plog_arguments...);
    plog_record << Text(record);
    appender_->write(plog_record);
  }

  std::string Text(const LogRecord& record) const {
    const std::string text =
        options_.tag_in_message ? "[" + record.tag + "] " + record.message : record.message;
    return options_.escape ? EscapeLogText(text) : WithoutNul(text);
  }

  // Newer plog cuts what it is given at a NUL, and formatters of any plog may cut what they print.
  static std::string WithoutNul(const std::string& text) {
    std::string without;
    for (const char c : text) {
      if (c == '\0') {
        without += "\\u0000";
      } else {
        without += c;
      }
    }
    return without;
  }

  const std::shared_ptr<plog::IAppender> appender_;
  const PlogOptions options_;
};

/// A formatter for plog's appenders, such as `plog::ConsoleAppender<TaggedTxtFormatter>`. Prints the line of
/// plog's TxtFormatter, and the tag before the message when the record is one of the library's:
///
///     2026-01-31 23:59:59.007 INFO  [4711] [GetBubbleDrawDescriptor@22] [KavrixMapLayerMgr] [Kavrix]...
///
/// The time is local. The thread id is missing when plog's record has none, as in some packages of plog 1.0.
class TaggedTxtFormatter {
 public:
  /// Returns the head of a log file: nothing.
  static plog::util::nstring header() { return {}; }

  /// Returns a record as one line, with the newline. What the message holds is not escaped here: see
  /// PlogOptions::escape.
  static plog::util::nstring format(const plog::Record& record) {
    std::ostringstream line;
    line.imbue(std::locale::classic());
    AppendTime(line, record.getTime());
    line << ' ' << std::setfill(' ') << std::left << std::setw(5) << SeverityName(record.getSeverity(), 0)
         << ' ';
    AppendThread(line, record, 0);
    line << '[' << record.getFunc() << '@' << record.getLine() << "] ";
    if (const TaggedRecord* const tagged = TaggedRecord::Of(record)) line << '[' << tagged->tag() << "] ";
    line << record.getMessage() << '\n';
    return line.str();
  }

 private:
  static void AppendTime(std::ostream& line, const plog::util::Time& time) {
    std::tm local;
    plog::util::localtime_s(&local, &time.time);
    line << std::put_time(&local, "%Y-%m-%d %H:%M:%S.") << std::setfill('0') << std::setw(3) << time.millitm;
  }

  // plog has renamed the function. A call with an int prefers the first of two when both compile.
  template <class Severity>
  static auto SeverityName(Severity severity, int) -> decltype(severityToString(severity)) {
    return severityToString(severity);
  }
  template <class Severity>
  static auto SeverityName(Severity severity, long) -> decltype(getSeverityName(severity)) {
    return getSeverityName(severity);
  }

  template <class PlogRecord>
  static auto AppendThread(std::ostream& line, const PlogRecord& record, int)
      -> decltype(void(record.getTid())) {
    line << '[' << record.getTid() << "] ";
  }
  template <class PlogRecord>
  static void AppendThread(std::ostream&, const PlogRecord&, long) {}
};

/// The client's plog logger of an id, as an appender. Looks it up for each record, and drops the record when
/// there is none: the library may still log when static objects are destroyed, after the logger was.
template <int plog_instance_id>
class PlogInstance : public plog::IAppender {
 public:
  /// Writes the record to the logger, which filters by its own severity.
  void write(const plog::Record& record) override {
    if (auto* const logger = plog::get<plog_instance_id>()) logger->write(record);
  }
};

/// Joins the library to the client's plog logger of that id: installs it as the library's instance of the
/// same id, in place of an earlier one, and sets kavrix_log_instance_id_ to it. Returns false and changes
/// nothing when plog has no such logger yet: call plog::init first.
///
/// Every level and tag is handed on, and the logger drops what its severity at that time does not take. To
/// filter by tag, or to save the building of what plog drops, install a PlogSink with SetLoggerInstance
/// instead. The logger may be destroyed at any time that no other thread decodes; its appenders must outlive
/// it, and lock themselves if several threads decode. `SetLoggerInstance(plog_instance_id, {})` leaves plog
/// again.
///
/// Call it where the logger lives: plog::get finds no logger of another shared library whose symbols are
/// hidden.
template <int plog_instance_id = 0>
bool JoinPlog(PlogOptions options = {}) {
  static_assert(plog_instance_id >= 0, "the library's instance ids are not negative");
  if (plog::get<plog_instance_id>() == nullptr) return false;
  auto logger = std::make_shared<PlogInstance<plog_instance_id>>();
  SetLoggerInstance(plog_instance_id,
                    {std::make_shared<PlogSink>(std::move(logger), options), LogLevel::kRoutine, {}});
  kavrix_log_instance_id_ = plog_instance_id;
  return true;
}

}  // namespace kavrix::logging

#endif  // KAVRIX_UTIL_TAGGED_LOG_PLOG_H_
