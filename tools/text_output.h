#ifndef KAVRIX_TOOLS_TEXT_OUTPUT_H_
#define KAVRIX_TOOLS_TEXT_OUTPUT_H_

#include <string>
#include <string_view>

#include "descriptors/flat_members.h"
#include "inspect/decoder.h"

namespace kavrix::tools {

struct TextOptions {
  bool all_members = false;  // also those that hold their defaults
  bool colour = false;
};

// For a person to read: name, kind, members, style record and log records, aligned.
std::string ToText(const inspect::Decoded& decoded, const TextOptions& options);

// The value of a member as text: strings in quotes, style words in hexadecimal too.
std::string ShownValue(const FlatMember& member);

// A text from a name made safe for a terminal: control characters as escapes, what is not UTF-8 as U+FFFD.
std::string Printable(std::string_view text);

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_TEXT_OUTPUT_H_
