#ifndef KAVRIX_TESTS_SUPPORT_RECORD_COLLECTOR_H_
#define KAVRIX_TESTS_SUPPORT_RECORD_COLLECTOR_H_

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "util/tagged_log.h"

namespace kavrix::test {

struct SeenRecord {
  int level;
  std::string tag;
  std::string function;
  std::string message;
};

inline bool operator==(const SeenRecord& a, const SeenRecord& b) {
  return a.level == b.level && a.tag == b.tag && a.function == b.function && a.message == b.message;
}

inline std::ostream& operator<<(std::ostream& stream, const SeenRecord& record) {
  return stream << "{" << record.level << ", \"" << record.tag << "\", \"" << record.function << "\", \""
                << record.message << "\"}";
}

// Collects the records of the current log instance while it lives.
class RecordCollector {
 public:
  RecordCollector() { Install(); }
  RecordCollector(const RecordCollector&) = delete;
  RecordCollector& operator=(const RecordCollector&) = delete;
  ~RecordCollector() { logging::SetLoggerInstance(logging::kavrix_log_instance_id_, {}); }

  // Installs it again, after something else was installed.
  void Install() {
    logging::SetLoggerInstance(logging::kavrix_log_instance_id_, {sink_, logging::LogLevel::kRoutine, {}});
  }

  const std::vector<SeenRecord>& records() const { return sink_->records; }
  const std::vector<std::string>& files() const { return sink_->files; }
  void Clear() {
    sink_->records.clear();
    sink_->files.clear();
  }

 private:
  struct Sink : logging::LogSink {
    void Write(const logging::LogRecord& record) override {
      records.push_back({static_cast<int>(record.level), record.tag, record.function, record.message});
      files.emplace_back(record.file);
    }
    std::vector<SeenRecord> records;
    std::vector<std::string> files;
  };
  std::shared_ptr<Sink> sink_ = std::make_shared<Sink>();
};

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_RECORD_COLLECTOR_H_
