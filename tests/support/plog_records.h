#ifndef KAVRIX_TESTS_SUPPORT_PLOG_RECORDS_H_
#define KAVRIX_TESTS_SUPPORT_PLOG_RECORDS_H_

#include <mutex>
#include <string>
#include <type_traits>
#include <vector>

#include "util/tagged_log_plog.h"

namespace kavrix::test {

// Keeps what a client's appender sees of each record. Locks itself.
class RecordKeeper : public plog::IAppender {
 public:
  void write(const plog::Record& record) override {
    const std::lock_guard<std::mutex> lock(mutex_);
    const logging::TaggedRecord* const ours = logging::TaggedRecord::Of(record);
    tags.push_back(ours == nullptr ? "none" : ours->tag());
    instance_ids.push_back(ours == nullptr ? 0 : ours->instance_id());
    messages.emplace_back(record.getMessage());
    times.push_back(record.getTime());
    lines.push_back(logging::TaggedTxtFormatter::format(record));
  }

  std::vector<std::string> tags;  // "none" for a record that is not of the library
  std::vector<std::uint32_t> instance_ids;
  std::vector<std::string> messages;
  std::vector<plog::util::Time> times;
  std::vector<std::string> lines;

 private:
  std::mutex mutex_;
};

// Writes a record of the client's own, as its log macros do.
template <class PlogRecord = plog::Record>
void WriteClientRecord(plog::IAppender& appender, plog::Severity severity, const char* message) {
  const void* const object = nullptr;
  const auto write = [&](PlogRecord&& record) {
    record << message;
    appender.write(record);
  };
  if constexpr (std::is_constructible_v<PlogRecord, plog::Severity, const char*, std::size_t, const void*>) {
    write(PlogRecord(severity, "main()", 7, object));
  } else if constexpr (std::is_constructible_v<PlogRecord, plog::Severity, const char*, std::size_t,
                                               const char*, const void*>) {
    write(PlogRecord(severity, "main()", 7, "main.cpp", object));
  } else {
    write(PlogRecord(severity, "main()", 7, "main.cpp", object, 0));
  }
}

// Writes a log record of the library to a sink.
inline void WriteLibraryRecord(logging::LogSink& sink, const std::string& tag, const std::string& message,
                               logging::LogLevel level = logging::LogLevel::kRoutine) {
  sink.Write({level, tag, "Parse", "parse.cpp", 12, message, 9});
}

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_PLOG_RECORDS_H_
