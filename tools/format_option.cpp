#include "tools/format_option.h"

#include <unistd.h>

namespace kavrix::tools {

bool ToTerminal() { return isatty(STDOUT_FILENO) != 0; }

void AddFormatOption(Command& command, std::string& format, const std::vector<std::string>& formats) {
  format = ToTerminal() ? "text" : "json";
  command.Choice("--format", format, formats, "text (on a terminal) or json, one object a line (when piped)");
}

}  // namespace kavrix::tools
