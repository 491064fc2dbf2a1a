#ifndef KAVRIX_INSPECT_TEXT_WIDTH_H_
#define KAVRIX_INSPECT_TEXT_WIDTH_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace kavrix::inspect {

// How a text of a picture is written; the size is in pixels.
struct Letters {
  int size = 12;
  bool is_bold = false;
};

// Returns a width in pixels that a text does not exceed in usual fonts, which is not known exactly where the
// picture is made. Every character has some width, so that a text that fits somewhere has a bounded length.
int TextWidth(std::string_view text, Letters letters);

// Returns how many bytes at the beginning of a text are whole characters that fit into `width` pixels.
std::size_t FittingLength(std::string_view text, Letters letters, int width);

// Returns the text, or what fits of it and "…".
std::string CutText(std::string_view text, Letters letters, int width);

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_TEXT_WIDTH_H_
