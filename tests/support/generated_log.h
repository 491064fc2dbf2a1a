#ifndef KAVRIX_TESTS_SUPPORT_GENERATED_LOG_H_
#define KAVRIX_TESTS_SUPPORT_GENERATED_LOG_H_

#include <cstddef>
#include <string>
#include <vector>

namespace kavrix::test {

// A text with resource names in it, and what is in there.
struct GeneratedLog {
  struct Name {
    std::string name;
    std::size_t line = 0;  // from 1
    std::size_t byte = 0;  // in the line, from 0
  };

  std::string text;
  std::vector<Name> names;
};

// Names of every kind and marker names, alone, two in a line, in quotes and brackets, inside texts of each
// other, cut off at the end of a line or by the next name; lines without names and with other schemes; and
// what the library logs while it decodes, in the form of FormatLogLine and as messages after a time.
GeneratedLog GenerateLog(unsigned seed, std::size_t lines);

// The same, each line as a text of a JSON object, what is not UTF-8 replaced. The bytes are those of the
// JSON.
GeneratedLog AsJsonLines(const GeneratedLog& log);

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_GENERATED_LOG_H_
