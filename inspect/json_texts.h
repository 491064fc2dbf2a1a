#ifndef KAVRIX_INSPECT_JSON_TEXTS_H_
#define KAVRIX_INSPECT_JSON_TEXTS_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "inspect/json_error.h"

namespace kavrix::inspect {

// The texts of one line of JSON, keys included, in order. Also finds those of a line that is no JSON, as far
// as it has double quotes: the last one may lack its end.
class JsonTexts {
 public:
  explicit JsonTexts(std::string_view line) : line_(line) {}

  // False at the end.
  bool Next();

  // The text, its escapes decoded. What is no escape, and half a surrogate pair, stays as it is.
  std::string_view text() const { return text_; }

  // Where in the line the byte `at` of the text comes from. Takes time only for what lies after the byte that
  // was asked for before.
  std::size_t PlaceOf(std::size_t at);

 private:
  const std::string_view line_;
  std::string_view source_;  // between the quotes
  std::string_view text_;
  std::string decoded_;
  std::size_t passed_source_ = 0;  // by PlaceOf, as is the next
  std::size_t passed_text_ = 0;
  std::size_t next_ = 0;  // where in the line the next text is sought
};

// Why a line is not one value of JSON, and where; none when it is one, or blank.
std::optional<JsonObjectError> FindErrorInJsonLine(std::string_view line);

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_JSON_TEXTS_H_
