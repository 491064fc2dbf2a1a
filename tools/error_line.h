#ifndef KAVRIX_TOOLS_ERROR_LINE_H_
#define KAVRIX_TOOLS_ERROR_LINE_H_

#include <string_view>

namespace kavrix::tools {

// Writes "kavrix-resource: ", the text made safe for a terminal and a newline to standard error. All that the
// tool tells of trouble goes through here, because any of it may hold text of an argument, a path or a file.
void WriteErrorLine(std::string_view text);

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_ERROR_LINE_H_
