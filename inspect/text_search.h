#ifndef KAVRIX_INSPECT_TEXT_SEARCH_H_
#define KAVRIX_INSPECT_TEXT_SEARCH_H_

#include <cstddef>
#include <cstring>
#include <string_view>

namespace kavrix::inspect {

inline bool StartsWith(std::string_view text, std::string_view start) {
  return text.substr(0, start.size()) == start;
}

inline bool EndsWith(std::string_view text, std::string_view end) {
  return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

// Finds the first `word` in `text`, at `from` or after it; npos when there is none.
inline std::size_t FindWord(std::string_view text, std::string_view word, std::size_t from) {
#if defined(__unix__) || defined(__APPLE__) || defined(__EMSCRIPTEN__)
  // Several times as fast as find, which stops at every first character of the word.
  const void* const found = ::memmem(text.data() + from, text.size() - from, word.data(), word.size());
  if (found == nullptr) return std::string_view::npos;
  return static_cast<std::size_t>(static_cast<const char*>(found) - text.data());
#else
  return text.find(word, from);
#endif
}

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_TEXT_SEARCH_H_
