#include "tests/support/document.h"

#include <cctype>
#include <filesystem>
#include <regex>
#include <sstream>

namespace kavrix::test {
namespace {

using Lines = std::vector<std::string>;

constexpr char kIndent[] = "    ";
constexpr char kPrompt[] = "    $ ";
constexpr char kAny[] = "...";

bool StartsWith(const std::string& text, const std::string& start) { return text.rfind(start, 0) == 0; }

bool EndsWith(const std::string& text, const std::string& end) {
  return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

Lines LinesOf(const std::string& text) {
  Lines lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

std::string WithoutIndent(const std::string& line) {
  return StartsWith(line, kIndent) ? line.substr(sizeof(kIndent) - 1) : "";
}

void DropBlankEnd(Lines& lines) {
  while (!lines.empty() && lines.back().empty()) lines.pop_back();
}

bool IsLineAsShown(const std::string& shown, const std::string& line) {
  if (!EndsWith(shown, kAny)) return shown == line;
  return StartsWith(line, shown.substr(0, shown.size() - (sizeof(kAny) - 1)));
}

bool IsAsShownFrom(const Lines& shown, std::size_t i, const Lines& output, std::size_t j) {
  for (; i < shown.size() && shown[i] != kAny; ++i, ++j) {
    if (j == output.size() || !IsLineAsShown(shown[i], output[j])) return false;
  }
  if (i == shown.size()) return j == output.size();
  for (; j <= output.size(); ++j) {
    if (IsAsShownFrom(shown, i + 1, output, j)) return true;
  }
  return false;
}

}  // namespace

std::vector<std::string> Documents() {
  namespace fs = std::filesystem;
  const fs::path root = KAVRIX_SOURCE_DIR;
  std::vector<std::string> documents;
  for (const char* const folder : {".", "docs", "page"}) {
    for (const auto& entry : fs::directory_iterator(root / folder)) {
      if (entry.path().extension() == ".md") {
        documents.push_back(entry.path().lexically_relative(root).lexically_normal());
      }
    }
  }
  return documents;
}

std::vector<ShownCommand> ShownCommands(const std::string& text) {
  const Lines lines = LinesOf(text);
  std::vector<ShownCommand> commands;
  for (std::size_t i = 0; i < lines.size();) {
    if (!StartsWith(lines[i], kPrompt)) {
      ++i;
      continue;
    }
    ShownCommand command = {i + 1, lines[i].substr(sizeof(kPrompt) - 1), {}};
    ++i;
    while (EndsWith(command.command, "\\") && i < lines.size()) {
      command.command += '\n' + WithoutIndent(lines[i++]);
    }
    while (i < lines.size() && (lines[i].empty() || StartsWith(lines[i], kIndent)) &&
           !StartsWith(lines[i], kPrompt)) {
      command.output.push_back(WithoutIndent(lines[i++]));
    }
    DropBlankEnd(command.output);
    commands.push_back(std::move(command));
  }
  return commands;
}

bool IsAsShown(const std::vector<std::string>& shown, const std::vector<std::string>& output) {
  Lines printed = output;
  DropBlankEnd(printed);
  return IsAsShownFrom(shown, 0, printed, 0);
}

std::vector<std::string> LinkTargets(const std::string& text) {
  static const std::regex link(R"(\]\(([^)\s]+)\))");
  std::vector<std::string> targets;
  for (std::sregex_iterator found(text.begin(), text.end(), link), end; found != end; ++found) {
    const std::string target = (*found)[1];
    if (target.find("://") == std::string::npos) targets.push_back(target);
  }
  return targets;
}

std::set<std::string> Anchors(const std::string& text) {
  std::set<std::string> anchors;
  for (const std::string& line : LinesOf(text)) {
    if (!StartsWith(line, "#")) continue;
    std::string anchor;
    for (const char c : line.substr(line.find_first_not_of("# "))) {
      const auto byte = static_cast<unsigned char>(c);
      if (std::isalnum(byte) != 0 || c == '-' || c == '_') anchor += static_cast<char>(std::tolower(byte));
      if (c == ' ') anchor += '-';
    }
    anchors.insert(anchor);
  }
  return anchors;
}

}  // namespace kavrix::test
