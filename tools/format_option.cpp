#include "tools/format_option.h"

#include <unistd.h>

#include <cstdlib>

namespace kavrix::tools {

bool ToTerminal() { return isatty(STDOUT_FILENO) != 0; }

bool ShowsColour() {
  const char* const no_colour = std::getenv("NO_COLOR");
  return ToTerminal() && (no_colour == nullptr || *no_colour == '\0');
}

void AddFormatOption(Command& command, std::string& format, const std::vector<std::string>& formats) {
  format = ToTerminal() ? "text" : "json";
  command.Choice("--format", format, formats,
                 "Output format; by default text on a terminal, else json, one object a line");
}

}  // namespace kavrix::tools
