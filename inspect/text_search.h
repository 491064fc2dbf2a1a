#ifndef KAVRIX_INSPECT_TEXT_SEARCH_H_
#define KAVRIX_INSPECT_TEXT_SEARCH_H_

#include <cstddef>
#include <string_view>

namespace kavrix::inspect {

inline bool StartsWith(std::string_view text, std::string_view start) {
  return text.substr(0, start.size()) == start;
}

inline bool EndsWith(std::string_view text, std::string_view end) {
  return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

// Finds the first `word`, which is not empty, in `text`, at `from` or after it; npos when there is none.
// Several times as fast as find, which stops at every first character of the word.
std::size_t FindWord(std::string_view text, std::string_view word, std::size_t from);

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_TEXT_SEARCH_H_
