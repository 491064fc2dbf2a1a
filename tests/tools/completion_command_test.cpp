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
using ::testing::UnorderedElementsAre;

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
std::vector<std::string> Completions(const std::vector<std::string>& words, const std::string& folder = "/") {
  const std::string run =
      "set -eu; cd \"$1\"; eval \"$(cat)\"; shift; COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1));"
      "_kavrix_resource; ((${#COMPREPLY[@]} == 0)) || printf '%s\\n' \"${COMPREPLY[@]}\"";
  std::vector<std::string> command = {"/bin/bash", "--norc", "-c", run, "bash", folder, "kavrix-resource"};
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
  EXPECT_THAT(Completions({"decode", "--null", "--co"}), ElementsAre("--context-name", "--config"));
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

TEST(CompletionCommandTest, FilesAreCompletedWhereAFileIsTaken) {
  const Folder folder;
  EXPECT_THAT(Completions({"decode", "--config", "my"}, folder.path()),
              UnorderedElementsAre("my config.json", "my log.txt"));
  EXPECT_THAT(Completions({"config", "--check", "=", "my c"}, folder.path()), ElementsAre("my config.json"));
  EXPECT_THAT(Completions({"extract", ""}, folder.path()),
              UnorderedElementsAre("my config.json", "my log.txt", "other", "sub folder"));
  EXPECT_THAT(Completions({"extract", "--un"}, folder.path()), ElementsAre("--unbuffered", "--unique"));
  EXPECT_THAT(Completions({"decode", "my"}, folder.path()), IsEmpty()) << "decode takes names";
}

// Types into a shell on a terminal, where readline quotes what it completes.
TEST(CompletionCommandTest, BlanksInFileNamesAreQuotedInTheShell) {
  const Folder folder;
  std::ofstream(folder.path() + "/script") << Script();
  const std::string typed = "cd " + folder.path() +
                            "; . ./script; kavrix-resource() { printf '<%s>' \"$@\" > shown; }\n"
                            "kavrix-resource check --config my\\ c\t --input sub\t\n"
                            "exit\n";
  const ToolResult shell = RunProgram(
      {"/usr/bin/script", "--quiet", "--command", "TERM=dumb /bin/bash --norc --noprofile -i", "/dev/null"},
      typed);
  EXPECT_EQ(shell.status, 0) << shell.output;
  std::ifstream shown(folder.path() + "/shown");
  std::string words;
  std::getline(shown, words);
  EXPECT_EQ(words, "<check><--config><my config.json><--input><sub folder/>") << shell.output;
}

TEST(CompletionCommandTest, OtherShellsAreUsageErrors) {
  for (const auto& result : {RunTool({"completion"}), RunTool({"completion", "fish"})}) {
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(result.errors, HasSubstr("expected the name of a shell: bash\n"));
  }
}

}  // namespace
}  // namespace kavrix::test
