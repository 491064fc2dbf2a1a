#include "inspect/text_search.h"

#ifdef __SSE2__
#include <emmintrin.h>
#endif

#include <cstring>

namespace kavrix::inspect {
namespace {

#ifdef __SSE2__
// Looks at 16 places at once, for the first and the last character of the word. Returns the place of the
// word, or the first place that was not looked at.
std::size_t SkipToWord(std::string_view text, std::string_view word, std::size_t from) {
  constexpr std::size_t kBlock = 16;
  const auto load = [&](std::size_t at) {
    __m128i bytes;
    std::memcpy(&bytes, text.data() + at, sizeof bytes);
    return bytes;
  };
  const __m128i first = _mm_set1_epi8(word.front());
  const __m128i last = _mm_set1_epi8(word.back());
  const std::size_t to_last = word.size() - 1;
  for (; from + to_last + kBlock <= text.size(); from += kBlock) {
    const __m128i both =
        _mm_and_si128(_mm_cmpeq_epi8(load(from), first), _mm_cmpeq_epi8(load(from + to_last), last));
    for (auto places = static_cast<unsigned>(_mm_movemask_epi8(both)); places != 0; places &= places - 1) {
      const std::size_t place = from + static_cast<std::size_t>(__builtin_ctz(places));
      if (std::memcmp(text.data() + place, word.data(), word.size()) == 0) return place;
    }
  }
  return from;
}
#else
std::size_t SkipToWord(std::string_view /*text*/, std::string_view /*word*/, std::size_t from) {
  return from;
}
#endif

}  // namespace

std::size_t FindWord(std::string_view text, std::string_view word, std::size_t from) {
  return text.find(word, SkipToWord(text, word, from));
}

}  // namespace kavrix::inspect
