#include "tools/format_option.h"

#include <unistd.h>

namespace kavrix::tools {

bool ToTerminal() { return isatty(STDOUT_FILENO) != 0; }

void AddFormatOption(CLI::App& command, std::string& format, const std::vector<std::string>& formats) {
  format = ToTerminal() ? "text" : "json";
  command.add_option("--format", format, "text (on a terminal) or json, one object a line (when piped)")
      ->check(CLI::IsMember(formats));
}

}  // namespace kavrix::tools
