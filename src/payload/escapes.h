#ifndef KAVRIX_PAYLOAD_ESCAPES_H_
#define KAVRIX_PAYLOAD_ESCAPES_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace kavrix {

// Returns the length of the JSON escape at the beginning of `text`, which begins with a backslash: 2, 6, or
// 12 for a surrogate pair. 0 when it is none, or one that JSON readers take in different ways: half a pair.
std::size_t EscapeLength(std::string_view text);

// Appends the contents of a JSON string, with every escape decoded to UTF-8. All of them must be valid.
void AppendUnescaped(std::string& text, std::string_view contents);

}  // namespace kavrix

#endif  // KAVRIX_PAYLOAD_ESCAPES_H_
