#ifndef KAVRIX_TESTS_PLOG_VERSIONS_SIX_ARGUMENTS_PLOG_RECORD_H_
#define KAVRIX_TESTS_PLOG_VERSIONS_SIX_ARGUMENTS_PLOG_RECORD_H_

#include "tests/plog_versions/common.h"

namespace plog {

class Record {
 public:
  Record(Severity severity, const char* function, std::size_t line, const char* file, const void* object,
         int instance_id)
      : severity_(severity),
        line_(line),
        object_(object),
        instance_id_(instance_id),
        texts_(function, file) {}
  virtual ~Record() = default;

  template <class Text>
  Record& operator<<(const Text& text) {
    texts_.Append(text);
    return *this;
  }

  virtual const util::Time& getTime() const { return kTimeOfRecords; }
  virtual unsigned int getTid() const { return kThreadOfRecords; }
  virtual Severity getSeverity() const { return severity_; }
  virtual const void* getObject() const { return object_; }
  virtual std::size_t getLine() const { return line_; }
  virtual const char* getMessage() const { return texts_.Message(); }
  virtual const char* getFunc() const { return texts_.Function(); }
  virtual const char* getFile() const { return texts_.File(); }
  virtual int getInstanceId() const { return instance_id_; }

 private:
  const Severity severity_;
  const std::size_t line_;
  const void* const object_;
  const int instance_id_;
  RecordTexts texts_;
};

}  // namespace plog

#endif  // KAVRIX_TESTS_PLOG_VERSIONS_SIX_ARGUMENTS_PLOG_RECORD_H_
