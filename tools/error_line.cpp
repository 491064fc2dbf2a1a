#include "tools/error_line.h"

#include <iostream>

#include "tools/text_output.h"

namespace kavrix::tools {

void WriteErrorLine(std::string_view text) { std::cerr << "kavrix-resource: " + Printable(text) + '\n'; }

}  // namespace kavrix::tools
