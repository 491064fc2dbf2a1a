#ifndef KAVRIX_UTIL_ESCAPE_H_
#define KAVRIX_UTIL_ESCAPE_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "util/text_buffer.h"

namespace kavrix {

// Appends untrusted text, and escapes what could end the line, begin another or move the cursor, as
// util/log_line.h lists: AppendEscaped(line, "a\nb\\c") appends a\nb\\c.
void AppendEscaped(std::string& line, std::string_view text);

// The same in double quotes, and escapes the quotes of the text too: AppendQuoted(line, "say \"hi\"") appends
// "say \"hi\"".
void AppendQuoted(std::string& line, std::string_view text);
void AppendQuoted(TextBuffer& line, std::string_view text);

// Appends the escape of one control character, such as \n or \u001b.
void AppendControl(std::string& line, char32_t c);

// Appends the last `digits` hexadecimal digits of a number: AppendHex(line, 0x1ab, 4) appends 01ab.
void AppendHex(std::string& line, std::uint32_t number, int digits);

}  // namespace kavrix

#endif  // KAVRIX_UTIL_ESCAPE_H_
