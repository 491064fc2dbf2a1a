#ifndef KAVRIX_TESTS_PLOG_VERSIONS_COMMON_LOGGER_H_
#define KAVRIX_TESTS_PLOG_VERSIONS_COMMON_LOGGER_H_

#include <plog/Record.h>

#include <vector>

// The appender and the logger, which are the same in the versions that the stand-ins are for.
namespace plog {

class IAppender {
 public:
  virtual ~IAppender() = default;
  virtual void write(const Record& record) = 0;
};

// Found by get() while it lives.
template <int instance_id>
class Logger : public IAppender {
 public:
  explicit Logger(Severity max_severity = none) : max_severity_(max_severity) { instance_ = this; }
  Logger(const Logger&) = delete;
  Logger& operator=(const Logger&) = delete;
  ~Logger() override { instance_ = nullptr; }

  static Logger* getInstance() { return instance_; }

  Logger& addAppender(IAppender* appender) {
    appenders_.push_back(appender);
    return *this;
  }
  void setMaxSeverity(Severity severity) { max_severity_ = severity; }
  void write(const Record& record) override {
    if (record.getSeverity() <= max_severity_) *this += record;
  }
  void operator+=(const Record& record) {
    for (IAppender* const appender : appenders_) appender->write(record);
  }

 private:
  static inline Logger* instance_ = nullptr;
  Severity max_severity_;
  std::vector<IAppender*> appenders_;
};

template <int instance_id>
Logger<instance_id>* get() {
  return Logger<instance_id>::getInstance();
}

}  // namespace plog

#endif  // KAVRIX_TESTS_PLOG_VERSIONS_COMMON_LOGGER_H_
