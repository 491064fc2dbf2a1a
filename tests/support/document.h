#ifndef KAVRIX_TESTS_SUPPORT_DOCUMENT_H_
#define KAVRIX_TESTS_SUPPORT_DOCUMENT_H_

#include <set>
#include <string>
#include <vector>

namespace kavrix::test {

// The paths of the documents that people read, from the root of the sources.
std::vector<std::string> Documents();

// A command that a document shows after "$ ", and what it says the command prints.
struct ShownCommand {
  std::size_t line = 0;  // from 1
  std::string command;
  std::vector<std::string> output;
};

// Returns the commands of a document's text, in order. A command goes on in the next line after a backslash;
// its output ends with the indented block.
std::vector<ShownCommand> ShownCommands(const std::string& text);

// Whether the output is the one that is shown. A shown line "..." stands for any lines, and "..." at the end
// of a line for the rest of it.
bool IsAsShown(const std::vector<std::string>& shown, const std::vector<std::string>& output);

// The targets of a document's links, without those that leave the repository.
std::vector<std::string> LinkTargets(const std::string& text);

// The anchors of a document's headings.
std::set<std::string> Anchors(const std::string& text);

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_DOCUMENT_H_
