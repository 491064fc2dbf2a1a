#ifndef KAVRIX_INSPECT_DECODED_LINE_H_
#define KAVRIX_INSPECT_DECODED_LINE_H_

#include <stdexcept>
#include <string>
#include <vector>

namespace kavrix::inspect {

// Lines of output of "decode --format json" that cannot be compared.
class CompareError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// One line of output of "decode --format json". All but the name is JSON.
struct DecodedLine {
  struct Member {
    std::string path;
    std::string value;
  };

  std::string resource_name;
  std::string kind;
  std::vector<Member> members;
  std::string exception;
};

// Throws CompareError for a line that "decode --format json" does not write.
DecodedLine ReadDecodedLine(const std::string& line);

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_DECODED_LINE_H_
