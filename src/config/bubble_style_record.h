#ifndef KAVRIX_CONFIG_BUBBLE_STYLE_RECORD_H_
#define KAVRIX_CONFIG_BUBBLE_STYLE_RECORD_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace kavrix {

/// The style of one bubble kind in one situation, as the bubble layer configures it: a style (image) name and
/// `kValueCount` 32-bit values. Each value is one 4-byte cell that the kind reads as a word or as a float of
/// the same bits. Values are numbered from 1; a number outside 1 to kValueCount throws std::out_of_range.
template <std::size_t ValueCount>
struct BubbleStyleRecord {
  static constexpr std::size_t kValueCount = ValueCount;  ///< How many values the record has.

  BubbleStyleRecord() = default;  ///< Makes a record with an empty name and zeros.
  /// Copies the record. Most have no items; skipping them makes the snapshot of all records a fifth cheaper.
  BubbleStyleRecord(const BubbleStyleRecord& other)
      : reserved_1(other.reserved_1), name(other.name), reserved_2(other.reserved_2), values(other.values) {
    if (!other.items.empty()) items = other.items;
  }
  BubbleStyleRecord(BubbleStyleRecord&&) noexcept = default;             ///< Moves the record.
  BubbleStyleRecord& operator=(const BubbleStyleRecord&) = default;      ///< Copies the record.
  BubbleStyleRecord& operator=(BubbleStyleRecord&&) noexcept = default;  ///< Moves the record.
  ~BubbleStyleRecord() = default;

  std::uint64_t reserved_1 = 0;                    ///< A value of the configuration that no kind reads.
  std::string name;                                ///< The style's name, which descriptors take over.
  std::uint64_t reserved_2 = 0;                    ///< Another value that no kind reads.
  std::vector<std::uint32_t> items;                ///< More values that no kind reads.
  std::array<std::uint32_t, ValueCount> values{};  ///< The cells; value 1 is the first.

  /// Returns a value as a word.
  std::uint32_t Word(std::size_t number) const { return values.at(number - 1); }
  /// Stores a word.
  void SetWord(std::size_t number, std::uint32_t word) { values.at(number - 1) = word; }

  /// Returns a value as the float of the same bits.
  float Float(std::size_t number) const {
    const std::uint32_t word = Word(number);
    float value = 0;
    std::memcpy(&value, &word, sizeof value);
    return value;
  }
  /// Stores the bits of a float.
  void SetFloat(std::size_t number, float value) {
    std::uint32_t word = 0;
    std::memcpy(&word, &value, sizeof word);
    SetWord(number, word);
  }
};

}  // namespace kavrix

#endif  // KAVRIX_CONFIG_BUBBLE_STYLE_RECORD_H_
