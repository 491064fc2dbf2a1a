#ifndef KAVRIX_UTIL_MUTED_LOGS_H_
#define KAVRIX_UTIL_MUTED_LOGS_H_

namespace kavrix::logging {

// While an object of this class lives, the log statements of its thread write nothing. For decodes that a
// client did not ask for, such as those of an explanation.
class MutedLogs {
 public:
  MutedLogs();
  MutedLogs(const MutedLogs&) = delete;
  MutedLogs& operator=(const MutedLogs&) = delete;
  ~MutedLogs();

 private:
  const bool were_muted_;
};

}  // namespace kavrix::logging

#endif  // KAVRIX_UTIL_MUTED_LOGS_H_
