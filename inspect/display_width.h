#ifndef KAVRIX_INSPECT_DISPLAY_WIDTH_H_
#define KAVRIX_INSPECT_DISPLAY_WIDTH_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace kavrix::inspect {

// Returns how many columns of a terminal a printable text takes. Chinese characters, and others that East
// Asian fonts show wide, take two; combining characters none.
std::size_t DisplayWidth(std::string_view text);

// Returns how many bytes at the beginning of a text take at most `width` columns. They are whole characters,
// and no more than four a column, whatever many of them take none.
std::size_t FittingLength(std::string_view text, std::size_t width);

// Returns the text, or what fits of it and "…", in at most `width` columns.
std::string CutText(std::string_view text, std::size_t width);

// Returns the text with blanks after it, up to `width` columns.
std::string Padded(std::string_view text, std::size_t width);

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_DISPLAY_WIDTH_H_
