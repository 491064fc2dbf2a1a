#include "tools/manual.h"

#include <algorithm>
#include <cctype>
#include <string_view>

namespace kavrix::tools {
namespace {

constexpr char kTool[] = "kavrix-resource";

// Makes a text that roff prints as it is. The characters of its own that are plain ASCII it would print as
// typographic ones, which nobody can paste into a shell; a line of it that begins with a dot is a request.
std::string Escaped(std::string_view text) {
  std::string escaped;
  char last = '\n';
  for (const char c : text) {
    switch (c) {
      case '\\':
        escaped += "\\e";
        break;
      case '-':
        escaped += "\\-";
        break;
      case '\'':
        escaped += "\\(aq";
        break;
      case '`':
        escaped += "\\(ga";
        break;
      case '^':
        escaped += "\\(ha";
        break;
      case '~':
        escaped += "\\(ti";
        break;
      case '.':
        escaped += last == '\n' ? "\\&." : ".";
        break;
      default:
        escaped += c;
    }
    last = c;
  }
  return escaped;
}

std::string Bold(const std::string& text) { return "\\fB" + Escaped(text) + "\\fP"; }

std::string Italic(const std::string& text) { return "\\fI" + Escaped(text) + "\\fP"; }

std::string PageName(const std::string& command) { return kTool + ("-" + command); }

std::string Reference(const std::string& page) { return Bold(page) + "(1)"; }

std::string Section(const std::string& title, const std::string& text) {
  if (text.empty()) return "";
  return ".SH " + title + '\n' + text + (text.back() == '\n' ? "" : "\n");
}

std::string Entry(const std::string& head, const std::string& text) {
  return ".TP\n" + head + '\n' + Escaped(text) + '\n';
}

// The page as far as the synopsis. `summary` is without a full stop, as readers of the NAME section want it.
std::string Head(const std::string& page, const std::string& summary, const std::string& synopsis) {
  std::string title = page;
  std::transform(title.begin(), title.end(), title.begin(),
                 [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return ".TH " + Escaped(title) + " 1 \"\" \"" + kTool + " " KAVRIX_VERSION "\" \"User Commands\"\n" +
         Section("NAME", Escaped(page) + " \\- " + Escaped(summary)) + Section("SYNOPSIS", synopsis);
}

// Names an option and its value: choices as they are typed, else what the value is.
std::string EntryOf(const OptionHelp& option) {
  const bool is_choice = option.value.find('|') != std::string::npos;
  std::string head = option.name == "--help" ? Bold("-h") + ", " : "";
  head += Bold(option.name);
  if (!option.value.empty()) head += ' ' + (is_choice ? Bold(option.value) : Italic(option.value));
  return Entry(head, option.help + '.');
}

std::string UsageOf(const OptionHelp& arguments) {
  const std::size_t begin = arguments.usage.find(arguments.value);
  return arguments.usage.substr(0, begin) + Italic(arguments.value) +
         arguments.usage.substr(begin + arguments.value.size());
}

std::string OptionsOf(const CommandHelp& command) {
  std::string entries;
  if (command.arguments) {
    const bool many = command.arguments->usage.back() == '.';
    entries += Entry(Italic(command.arguments->value) + (many ? "..." : ""), command.arguments->help + '.');
  }
  for (const OptionHelp& option : command.options) entries += EntryOf(option);
  return entries;
}

// The NAME section has the summary.
std::string DescriptionOf(const CommandHelp& command) {
  return Escaped(command.details.empty() ? command.help + '.' : command.details);
}

}  // namespace

std::string ManualOf(const CommandHelp& command) {
  std::string synopsis = Bold(std::string(kTool) + ' ' + command.name) + " [" + Italic("OPTION") + "]...";
  if (command.arguments) synopsis += ' ' + UsageOf(*command.arguments);
  std::string examples;
  for (const std::string& example : command.examples) examples += ".PP\n.EX\n" + Escaped(example) + "\n.EE\n";
  return Head(PageName(command.name), command.help, synopsis) +
         Section("DESCRIPTION", DescriptionOf(command)) + Section("OPTIONS", OptionsOf(command)) +
         Section("EXIT STATUS", Escaped(command.exit_status)) + Section("EXAMPLES", examples) +
         Section("SEE ALSO", Reference(kTool));
}

std::string ManualOfTool(const CommandHelp& tool, const std::vector<CommandHelp>& commands) {
  const std::string synopsis = Bold(kTool) + ' ' + Italic("COMMAND") + " [" + Italic("OPTION") + "]...";
  std::string entries;
  std::string references;
  for (const CommandHelp& command : commands) {
    entries += Entry(Bold(command.name), command.help + '.');
    references += (references.empty() ? "" : ",\n") + Reference(PageName(command.name));
  }
  return Head(kTool, tool.help, synopsis) + Section("DESCRIPTION", DescriptionOf(tool)) +
         Section("COMMANDS", entries) + Section("OPTIONS", OptionsOf(tool)) +
         Section("EXIT STATUS", Escaped(tool.exit_status)) + Section("SEE ALSO", references);
}

}  // namespace kavrix::tools
