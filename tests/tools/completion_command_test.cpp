#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <regex>

#include "tests/support/tool.h"

namespace kavrix::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

// A folder with files to complete.
class Folder {
 public:
  Folder() {
    std::filesystem::create_directories(path_ + "/sub folder");
    for (const std::string name : {"my config.json", "my log.txt", "other"})
      std::ofstream(path_ + "/" + name);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder() { std::filesystem::remove_all(path_); }

  const std::string& path() const { return path_; }

 private:
  std::string path_ = "/tmp/kavrix_completion_test_" + std::to_string(getpid());
};

std::string Script() { return RunTool({"completion", "bash"}).output; }

// What bash would offer for the last of the words, in a shell that has read only the script and stops at
// errors and unset variables.
std::vector<std::string> Completions(const std::vector<std::string>& words) {
  const std::string run =
      "set -eu; eval \"$(cat)\"; COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1));"
      "_kavrix_resource; ((${#COMPREPLY[@]} == 0)) || printf '%s\\n' \"${COMPREPLY[@]}\"";
  std::vector<std::string> command = {"/bin/bash", "--norc", "-c", run, "bash", "kavrix-resource"};
  command.insert(command.end(), words.begin(), words.end());
  const ToolResult result = RunProgram(command, Script());
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.errors, "");
  return result.Lines();
}

TEST(CompletionCommandTest, CommandsAreCompleted) {
  EXPECT_THAT(Completions({""}), ElementsAreArray(ToolCommands()));
  EXPECT_THAT(Completions({"ex"}), ElementsAre("explain", "extract"));
  EXPECT_THAT(Completions({"--"}), ElementsAre("--help", "--version"));
  EXPECT_THAT(Completions({"manual", "sur"}), ElementsAre("survey"));
}

TEST(CompletionCommandTest, EveryOptionOfEveryCommandIsCompleted) {
  const std::regex option_line("^  (?:-h,)?(--[a-z-]+) .*$");
  for (const std::string& command : ToolCommands()) {
    std::vector<std::string> options;
    for (const std::string& line : RunTool({command, "--help"}).Lines()) {
      std::smatch match;
      if (std::regex_match(line, match, option_line)) options.push_back(match[1]);
    }
    EXPECT_THAT(options, Contains("--help"));
    EXPECT_THAT(Completions({command, "--"}), ElementsAreArray(options)) << command;
  }
  EXPECT_THAT(Completions({"decode", "--null", "--co"}), ElementsAre("--config", "--context-name"));
  EXPECT_THAT(Completions({"decode", "--none"}), IsEmpty());
}

TEST(CompletionCommandTest, ValuesAreCompletedByWhatTheOptionTakes) {
  EXPECT_THAT(Completions({"decode", "--format", ""}), ElementsAre("text", "json"));
  EXPECT_THAT(Completions({"decode", "--format", "j"}), ElementsAre("json"));
  EXPECT_THAT(Completions({"kinds", "--format", "=", "m"}), ElementsAre("markdown"));
  EXPECT_THAT(Completions({"kinds", "--format", "="}), ElementsAre("text", "json", "markdown"));
  EXPECT_THAT(Completions({"encode", "--kind", "eta"}), ElementsAre("etaBubble"));
  EXPECT_THAT(Completions({"kinds", "turn"}), Contains("turnBubble"));
  EXPECT_THAT(Completions({"schema", "compare"}), ElementsAre("compare", "compare-each", "compare-summary"));
  EXPECT_THAT(Completions({"completion", ""}), ElementsAre("bash"));
  EXPECT_THAT(Completions({"decode", "--prefix", ""}), IsEmpty());
  EXPECT_THAT(Completions({"decode", "--jobs", ""}), IsEmpty());
}

// Types a command into a shell on a terminal, where readline completes files and quotes them, and returns the
// words that the tool would get.
std::string Typed(const Folder& folder, const std::string& arguments) {
  std::ofstream(folder.path() + "/script") << Script();
  const std::string typed = "cd " + folder.path() +
                            "; . ./script; kavrix-resource() { printf '<%s>' \"$@\" > shown; }\n"
                            "kavrix-resource " +
                            arguments + "\nexit\n";
  const ToolResult shell = RunProgram(
      {"/usr/bin/script", "--quiet", "--command", "TERM=dumb /bin/bash --norc --noprofile -i", "/dev/null"},
      typed);
  EXPECT_EQ(shell.status, 0) << shell.output;
  std::ifstream shown(folder.path() + "/shown");
  std::string words;
  std::getline(shown, words);
  return words;
}

TEST(CompletionCommandTest, FilesAreCompletedWhereAFileIsTaken) {
  const Folder folder;
  EXPECT_EQ(Typed(folder, "check --config my\\ c\t --input sub\t"),
            "<check><--config><my config.json><--input><sub folder/>");
  EXPECT_EQ(Typed(folder, "config --check=\"my c\t"), "<config><--check=my config.json>");
  EXPECT_EQ(Typed(folder, "extract oth\t"), "<extract><other>");
  EXPECT_EQ(Typed(folder, "decode oth\t"), "<decode><oth>") << "decode takes names";
  EXPECT_THAT(Completions({"extract", "--un"}), ElementsAre("--unbuffered", "--unique"));
}

TEST(CompletionCommandTest, FilesAreCompletedAfterARedirection) {
  const Folder folder;
  std::filesystem::remove(folder.path() + "/my config.json");
  EXPECT_EQ(Typed(folder, "config --default > my\t"), "<config><--default>");
  EXPECT_FALSE(std::filesystem::exists(folder.path() + "/my"))
      << "the shell got a name that was not completed";
  EXPECT_EQ(Typed(folder, "check --config oth\t < my\t"), "<check><--config><other>");
}

TEST(CompletionCommandTest, EqualsSignsOfNamesAndFilesAreNoOptions) {
  const Folder folder;
  std::ofstream(folder.path() + "/a=b.json");
  EXPECT_EQ(Typed(folder, "decode x a=\t"), "<decode><x><a=>");
  EXPECT_EQ(Typed(folder, "decode --config a=\t"), "<decode><--config><a=>");
  EXPECT_THAT(Completions({"decode", "a", "="}), IsEmpty());
  EXPECT_THAT(Completions({"decode", "a", "=", "te"}), IsEmpty());
}

TEST(CompletionCommandTest, OtherShellsAreUsageErrors) {
  const ToolResult other = RunTool({"completion", "fish"});
  EXPECT_EQ(other.status, 2);
  EXPECT_EQ(other.output, "");
  EXPECT_THAT(other.errors, HasSubstr("expected the name of a shell: bash\n"));
  const ToolResult none = RunTool({"completion"});
  EXPECT_EQ(none.status, 2);
  EXPECT_EQ(none.output, "");
  EXPECT_THAT(none.errors, HasSubstr("expected the name of a shell: bash\n"));
}

}  // namespace
}  // namespace kavrix::test
