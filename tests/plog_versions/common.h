#ifndef KAVRIX_TESTS_PLOG_VERSIONS_COMMON_H_
#define KAVRIX_TESTS_PLOG_VERSIONS_COMMON_H_

#include <cstddef>
#include <ctime>
#include <string>

// Shared by the stand-ins for newer plog versions, which have only what the sink and the formatter use of
// those versions.
namespace plog {

enum Severity { none = 0, fatal = 1, error = 2, warning = 3, info = 4, debug = 5, verbose = 6 };

inline const char* severityToString(Severity severity) {
  const char* const names[] = {"NONE", "FATAL", "ERROR", "WARN", "INFO", "DEBUG", "VERB"};
  return names[severity];
}

namespace util {

using nstring = std::string;

struct Time {
  std::time_t time;
  unsigned short millitm;
};

inline void localtime_s(std::tm* local, const std::time_t* time) { ::localtime_r(time, local); }

}  // namespace util

// What is the same in every record of the stand-ins: a record is always written at 2001-09-09 01:46:40.007
// UTC.
constexpr util::Time kTimeOfRecords = {1'000'000'000, 7};
constexpr unsigned int kThreadOfRecords = 4711;

class RecordTexts {
 public:
  RecordTexts(const char* function, const char* file) : function_(function), file_(file) {}

  void Append(const std::string& text) { message_ += text.c_str(); }  // those versions cut at a NUL
  const char* Message() const { return message_.c_str(); }
  const char* File() const { return file_; }

  // Returns the word before the parenthesis of a function's signature.
  const char* Function() const {
    const std::string signature = function_;
    const std::size_t end = signature.find('(');
    const std::size_t begin = signature.rfind(' ', end) + 1;
    bare_function_ = signature.substr(begin, end - begin);
    return bare_function_.c_str();
  }

 private:
  const char* function_;
  const char* file_;
  mutable std::string bare_function_;
  std::string message_;
};

}  // namespace plog

#endif  // KAVRIX_TESTS_PLOG_VERSIONS_COMMON_H_
