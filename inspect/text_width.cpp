#include "inspect/text_width.h"

#include <limits>

#include "inspect/display_width.h"
#include "util/utf8.h"

namespace kavrix::inspect {
namespace {

constexpr char kDots[] = "\xE2\x80\xA6";

bool IsOneOf(std::string_view characters, char c) { return characters.find(c) != std::string_view::npos; }

// In hundredths of the size: as wide as the widest of usual fonts has it.
int WidthOf(std::string_view character, bool is_bold) {
  constexpr int kMark = 10;
  constexpr int kOther = 105;
  constexpr int kEmoji = 130;
  const std::size_t columns = DisplayWidth(character);
  if (columns == 0) return kMark;
  if (columns == 2 && character.size() == 4) return kEmoji;
  const char c = character[0];
  if (c < ' ' || c > '~') return kOther;  // U+FFFD stands for controls
  if (IsOneOf("mwMW@%", c)) return is_bold ? 112 : 102;
  if ((c >= 'A' && c <= 'Z') || IsOneOf("#&+<=>^_`~", c)) return is_bold ? 88 : 84;
  if (IsOneOf(" fijlrtI!'(),-./:;[]|", c)) return 50;
  return is_bold ? 72 : 66;
}

struct Fitting {
  std::size_t length;
  std::int64_t width;  // in hundredths of a pixel
};

Fitting Measure(std::string_view text, Letters letters, std::int64_t most) {
  Fitting fitting = {0, 0};
  while (fitting.length < text.size()) {
    const std::size_t length = NextUtf8(text.substr(fitting.length)).length;
    const int width = WidthOf(text.substr(fitting.length, length), letters.is_bold) * letters.size;
    if (fitting.width + width > most) break;
    fitting.length += length;
    fitting.width += width;
  }
  return fitting;
}

}  // namespace

int TextWidth(std::string_view text, Letters letters) {
  constexpr auto kAny = std::numeric_limits<std::int64_t>::max() / 2;
  return static_cast<int>((Measure(text, letters, kAny).width + 99) / 100);
}

std::size_t FittingLength(std::string_view text, Letters letters, int width) {
  return Measure(text, letters, std::int64_t{100} * width).length;
}

std::string CutText(std::string_view text, Letters letters, int width) {
  if (FittingLength(text, letters, width) == text.size()) return std::string(text);
  const int room = width - TextWidth(kDots, letters);
  return std::string(text.substr(0, FittingLength(text, letters, room))) + kDots;
}

}  // namespace kavrix::inspect
