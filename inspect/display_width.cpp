#include "inspect/display_width.h"

#include <algorithm>
#include <array>

#include "util/utf8.h"

namespace kavrix::inspect {
namespace {

struct CharacterRange {
  char32_t first;
  char32_t last;
};

constexpr std::array<CharacterRange, 58> kWide = {
    {{0x1100, 0x115F},   {0x231A, 0x231B},   {0x2329, 0x232A},   {0x23E9, 0x23EC},   {0x23F0, 0x23F0},
     {0x23F3, 0x23F3},   {0x25FD, 0x25FE},   {0x2614, 0x2615},   {0x2648, 0x2653},   {0x267F, 0x267F},
     {0x2693, 0x2693},   {0x26A1, 0x26A1},   {0x26AA, 0x26AB},   {0x26BD, 0x26BE},   {0x26C4, 0x26C5},
     {0x26CE, 0x26CE},   {0x26D4, 0x26D4},   {0x26EA, 0x26EA},   {0x26F2, 0x26F3},   {0x26F5, 0x26F5},
     {0x26FA, 0x26FA},   {0x26FD, 0x26FD},   {0x2705, 0x2705},   {0x270A, 0x270B},   {0x2728, 0x2728},
     {0x274C, 0x274C},   {0x274E, 0x274E},   {0x2753, 0x2755},   {0x2757, 0x2757},   {0x2795, 0x2797},
     {0x27B0, 0x27B0},   {0x27BF, 0x27BF},   {0x2B1B, 0x2B1C},   {0x2B50, 0x2B50},   {0x2B55, 0x2B55},
     {0x2E80, 0x303E},   {0x3041, 0x33FF},   {0x3400, 0x4DBF},   {0x4E00, 0x9FFF},   {0xA000, 0xA4CF},
     {0xA960, 0xA97F},   {0xAC00, 0xD7A3},   {0xF900, 0xFAFF},   {0xFE30, 0xFE6F},   {0xFF00, 0xFF60},
     {0xFFE0, 0xFFE6},   {0x1F004, 0x1F004}, {0x1F0CF, 0x1F0CF}, {0x1F18E, 0x1F18E}, {0x1F191, 0x1F19A},
     {0x1F200, 0x1F265}, {0x1F300, 0x1F64F}, {0x1F680, 0x1F6FF}, {0x1F7E0, 0x1F7EB}, {0x1F7F0, 0x1F7F0},
     {0x1F900, 0x1F9FF}, {0x1FA70, 0x1FAFF}, {0x20000, 0x3FFFD}}};
constexpr std::array<CharacterRange, 4> kCombining = {
    {{0x0300, 0x036F}, {0x200B, 0x200F}, {0x20D0, 0x20FF}, {0xFE00, 0xFE0F}}};

template <class Ranges>
bool IsIn(const Ranges& ranges, char32_t c) {
  return std::any_of(ranges.begin(), ranges.end(),
                     [&](const CharacterRange& range) { return c >= range.first && c <= range.last; });
}

std::size_t WidthOf(char32_t c) {
  if (c < 0x300) return 1;
  return IsIn(kCombining, c) ? 0 : IsIn(kWide, c) ? 2 : 1;
}

}  // namespace

std::size_t DisplayWidth(std::string_view text) {
  std::size_t width = 0;
  while (!text.empty()) {
    const Utf8Piece piece = NextUtf8(text);
    width += WidthOf(piece.code_point);
    text.remove_prefix(piece.length);
  }
  return width;
}

std::size_t FittingLength(std::string_view text, std::size_t width) {
  constexpr std::size_t kMostCharactersAColumn = 4;
  std::size_t length = 0;
  std::size_t columns = 0;
  for (std::size_t characters = 0; characters < kMostCharactersAColumn * width; ++characters) {
    const Utf8Piece piece = NextUtf8(text.substr(length));
    columns += WidthOf(piece.code_point);
    if (piece.length == 0 || columns > width) break;
    length += piece.length;
  }
  return length;
}

std::string CutText(std::string_view text, std::size_t width) {
  if (FittingLength(text, width) == text.size()) return std::string(text);
  return std::string(text.substr(0, FittingLength(text, width - 1))) + "\xE2\x80\xA6";
}

std::string Padded(std::string_view text, std::size_t width) {
  const std::size_t own = DisplayWidth(text);
  return std::string(text) + std::string(width > own ? width - own : 0, ' ');
}

}  // namespace kavrix::inspect
