#ifndef KAVRIX_INSPECT_NAME_END_H_
#define KAVRIX_INSPECT_NAME_END_H_

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace kavrix::inspect {

// What the dispatcher's record of a name without a marker ends with.
inline constexpr std::string_view kNotValidTail = ", it is a not valid bubble.";

// Where the resource names in one line of text end.
//
// A name with an object right after its prefix ends with the marker that follows the object, which is read as
// the decoder reads it: what looks like a marker or a prefix inside its texts is only text. Every other name
// lies before the next prefix, and ends with the first marker that follows "@" and a number, else with the
// last marker, else there or with the line.
class NameEnds {
 public:
  // The line comes without its newline, and must outlive the object.
  NameEnds(std::string_view line, std::string_view prefix) : line_(line), prefix_(prefix) {}

  // The end of the name that begins at `begin`, where the prefix stands.
  std::size_t EndOf(std::size_t begin);

 private:
  std::size_t EndAfterObject(std::size_t object_begin);
  std::size_t EndOfTail(std::size_t object_end) const;
  std::size_t EndByMarkers(std::size_t begin) const;
  std::size_t LastObjectEndIn(std::size_t begin, std::size_t end);

  const std::string_view line_;
  const std::string_view prefix_;
  std::optional<std::vector<std::size_t>> object_ends_;  // where a name could end its object; none: unknown
  std::size_t read_in_vain_ = 0;                         // bytes given to JsonCpp that were no object
};

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_NAME_END_H_
