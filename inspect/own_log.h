#ifndef KAVRIX_INSPECT_OWN_LOG_H_
#define KAVRIX_INSPECT_OWN_LOG_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace kavrix::inspect {

// A line of a log that this library wrote, in whatever format: it holds "[Kavrix][", the context's name and
// "]", then the message. Of the several records that a decode writes, the one that tells of the request is
// the one that counts.
struct OwnLine {
  std::optional<std::size_t> name_begin;  // after "]resource_name:"; none in lines of other records
  bool is_escaped = false;                // FormatLogLine wrote it
  bool is_request = false;                // the line says that the dispatcher wrote it
  bool is_repeat = false;                 // the line says that the ETA parser wrote it
};

// Reads what stands before and after the "[Kavrix][" that comes first, which must be before `limit`; none
// when there is none.
std::optional<OwnLine> ReadOwnLine(std::string_view line, std::size_t limit);

// Undoes the escapes of FormatLogLine. What is none stays as it is.
std::string WithoutEscapes(std::string_view message);

// Tells which requests repeat the line before: the dispatcher's record of a name without a marker comes after
// its routine record, and the ETA parser writes the name once more.
class RepeatedRequests {
 public:
  // Whether `name`, which a line holds, was counted in the line before. `line_begin` and `line_end` are
  // places in the whole log.
  bool Repeats(const OwnLine& line, const std::string& name, bool is_told_not_valid, std::size_t line_begin,
               std::size_t line_end);

 private:
  std::string name_;                 // of the request that was counted last
  std::size_t next_line_begin_ = 0;  // the place after its line; 0: no line can repeat it
};

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_OWN_LOG_H_
