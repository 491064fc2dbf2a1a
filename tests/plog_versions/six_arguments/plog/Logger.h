#ifndef KAVRIX_TESTS_PLOG_VERSIONS_SIX_ARGUMENTS_PLOG_LOGGER_H_
#define KAVRIX_TESTS_PLOG_VERSIONS_SIX_ARGUMENTS_PLOG_LOGGER_H_

#include <plog/Record.h>

namespace plog {

class IAppender {
 public:
  virtual ~IAppender() = default;
  virtual void write(const Record& record) = 0;
};

}  // namespace plog

#endif  // KAVRIX_TESTS_PLOG_VERSIONS_SIX_ARGUMENTS_PLOG_LOGGER_H_
