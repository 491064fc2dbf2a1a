#ifndef KAVRIX_UTIL_TAGGED_LOG_PLOG_H_
#define KAVRIX_UTIL_TAGGED_LOG_PLOG_H_

// Hands the library's log records to plog. The library itself is built without plog: the client compiles this
// header against its own plog (1.0 or 1.1), so the two never disagree about plog's classes.

// Logger.h of plog 1.0 needs Record.h before it.
// clang-format off
#include <plog/Record.h>
#include <plog/Logger.h>
// clang-format on

#include <memory>
#include <string>
#include <type_traits>

#include "tagged_log.h"

namespace kavrix::logging {

// A sink that writes to a plog appender, or to a plog logger, which is an appender too and filters by its own
// severity. Level 0 arrives as plog::info, level 1 as plog::error. plog has no tags: filter by tag with
// LoggerInstance::tag_filter. The appender must lock itself if several threads decode, and must outlive the
// sink, which log records begun before its removal keep alive: see SetLoggerInstance.
class PlogSink : public LogSink {
 public:
  explicit PlogSink(plog::IAppender& appender) : appender_(appender) {}

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
      Deliver(PlogRecord(severity, signature, record.line, record.file, object, 0), record.message);
    } else if constexpr (std::is_constructible_v<PlogRecord, plog::Severity, const char*, std::size_t,
                                                 const char*, const void*>) {
      Deliver(PlogRecord(severity, signature, record.line, record.file, object), record.message);
    } else {
      Deliver(PlogRecord(severity, signature, record.line, object), record.message);
    }
  }

  template <class PlogRecord>
  void Deliver(PlogRecord&& plog_record, const std::string& message) {
    plog_record << message;
    appender_.write(plog_record);
  }

  plog::IAppender& appender_;
};

}  // namespace kavrix::logging

#endif  // KAVRIX_UTIL_TAGGED_LOG_PLOG_H_
