#ifndef KAVRIX_UTIL_EIGHT_BYTES_H_
#define KAVRIX_UTIL_EIGHT_BYTES_H_

#include <cstddef>
#include <cstdint>
#include <cstring>

// Looks at 8 bytes of a text at once. A mark is the highest bit of a byte. Marks after the first may be
// wrong; the first one is right, also of several marks joined by "|".
namespace kavrix::eight_bytes {

inline constexpr std::uint64_t kEach = 0x0101010101010101;

// The first byte is the lowest one, on every machine.
inline std::uint64_t Load(const char* bytes) {
  std::uint64_t word = 0;
  std::memcpy(&word, bytes, sizeof word);
#if defined(__BYTE_ORDER__) && __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__
  word = __builtin_bswap64(word);
#endif
  return word;
}

// Marks bytes below `limit`, which is at most 0x80.
inline std::uint64_t MarkBelow(std::uint64_t word, unsigned char limit) {
  return (word - kEach * limit) & ~word & kEach << 7;
}

// Marks an ASCII character. Which bytes are ASCII is asked of the word itself, so that the compiler asks it
// once for all marks of a word.
inline std::uint64_t Mark(std::uint64_t word, char c) {
  return ((word ^ kEach * static_cast<unsigned char>(c)) - kEach) & ~word & kEach << 7;
}

inline std::uint64_t MarkNonAscii(std::uint64_t word) { return word & kEach << 7; }

// Returns the number of bytes before the first mark, of which there must be one.
inline std::size_t BytesBefore(std::uint64_t marks) {
  return static_cast<std::size_t>(__builtin_ctzll(marks)) / 8;
}

}  // namespace kavrix::eight_bytes

#endif  // KAVRIX_UTIL_EIGHT_BYTES_H_
