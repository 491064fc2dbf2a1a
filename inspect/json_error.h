#ifndef KAVRIX_INSPECT_JSON_ERROR_H_
#define KAVRIX_INSPECT_JSON_ERROR_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace kavrix::inspect {

inline constexpr std::string_view kJsonBlanks = " \t\n\r";

// Why a text is not a JSON object, and where.
struct JsonObjectError {
  std::size_t at = 0;    // the first byte that no JSON can go on with; the length of the text at its end
  std::string expected;  // "',' or '}'"
};

// Finds the error in a text that the reader of payloads refused. Strings may hold any bytes, and comments are
// skipped, as that reader does.
JsonObjectError FindJsonError(std::string_view text);

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_JSON_ERROR_H_
