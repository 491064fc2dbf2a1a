#ifndef KAVRIX_TOOLS_DISPLAY_WIDTH_H_
#define KAVRIX_TOOLS_DISPLAY_WIDTH_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace kavrix::tools {

// Returns how many columns of a terminal a printable text takes. Chinese characters, and others that East
// Asian fonts show wide, take two; combining characters none.
std::size_t DisplayWidth(std::string_view text);

// Returns the text with blanks after it, up to `width` columns.
std::string Padded(std::string_view text, std::size_t width);

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_DISPLAY_WIDTH_H_
