#ifndef KAVRIX_TOOLS_EXPLAINED_TEXT_H_
#define KAVRIX_TOOLS_EXPLAINED_TEXT_H_

#include <cstddef>
#include <string>

#include "inspect/explanation.h"

namespace kavrix::tools {

struct ExplainedTextOptions {
  bool all_members = false;  // also those that hold their defaults
  bool colour = false;
  std::size_t width = 100;  // of a line, in columns
};

// The width of the terminal on standard output, in columns; 100 when it is none.
std::size_t TerminalWidth();

// For a person to read: the name with marks under its parts, the members with their values, places and rules,
// and what is wrong, each with the part of the name around it.
std::string ToText(const inspect::Explanation& explanation, const ExplainedTextOptions& options);

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_EXPLAINED_TEXT_H_
