#ifndef KAVRIX_INSPECT_NAME_EXTRACTOR_H_
#define KAVRIX_INSPECT_NAME_EXTRACTOR_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "inspect/json_error.h"
#include "inspect/own_log.h"

namespace kavrix::inspect {

// A resource name that stands in a text.
struct ExtractedName {
  std::string name;      // holds a newline where the log of this library has an escape for it
  std::size_t line = 0;  // from 1; 0 when lines are not counted
  std::size_t byte = 0;  // of its beginning in the line, from 0
};

// A line that is not JSON, where all lines should be.
struct LineError {
  std::size_t line = 0;
  JsonObjectError error;  // `at` is a byte of the line
};

enum class LogLines {
  kText,         // any text
  kCountedText,  // the same, and the numbers of the lines are wanted, which takes a look at every byte
  kJson,         // every line is JSON; names are sought in its texts, decoded
};

// Finds the resource names in a text, line by line, by the prefix that they begin with. NameEnds tells where
// a name ends. In the log of this library a request counts once, though several records hold its name.
class NameExtractor {
 public:
  // The prefix of the process must not be empty, and must not change meanwhile.
  explicit NameExtractor(LogLines lines);

  // Seeks names in the lines that come after those of the call before, and appends them to `names`. A line
  // that does not end with the block is sought in as if it did, and goes on with the next block.
  void Extract(std::string_view lines, std::vector<ExtractedName>& names, std::vector<LineError>& errors);

 private:
  struct Line;

  void ExtractText(std::string_view lines);
  void ExtractJson(std::string_view lines);
  void ExtractJsonLine(const Line& line, std::size_t cut);
  std::size_t BytesCutOff(std::size_t begin) const;
  template <class PlaceOf>
  void ExtractLine(std::string_view text, std::size_t first, const Line& line, PlaceOf place_of);
  bool ExtractRequest(std::string_view text, const OwnLine& own, const Line& line, std::string& name);

  const std::string_view prefix_;
  const LogLines format_;
  RepeatedRequests requests_;
  std::size_t bytes_before_ = 0;  // of the lines of all calls before
  std::size_t lines_before_ = 0;
  std::size_t line_begin_ = 0;  // where in the whole text the line begins that a block may go on with
  std::vector<ExtractedName>* names_ = nullptr;
  std::vector<LineError>* errors_ = nullptr;
};

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_NAME_EXTRACTOR_H_
