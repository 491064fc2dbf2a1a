#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/read_file.h"
#include "tests/support/tool.h"

namespace kavrix::test {
namespace {

using ::testing::Contains;
using ::testing::HasSubstr;

TEST(CommandLineTest, UnknownOptionsAndFormatsAreUsageErrors) {
  const ToolResult option = RunTool({"decode", "--bogus"});
  EXPECT_EQ(option.status, 2);
  EXPECT_THAT(option.errors, HasSubstr("--bogus"));
  EXPECT_EQ(option.output, "");
  EXPECT_EQ(RunTool({"decode", "--format", "xml"}).status, 2);
  EXPECT_EQ(RunTool({}).status, 2);
  EXPECT_EQ(RunTool({"nonsense"}).status, 2);
}

TEST(CommandLineTest, NearestCommandOptionAndKindAreSuggested) {
  EXPECT_EQ(RunTool({"decod", "x"}).errors,
            "kavrix-resource: no command is called \"decod\"; did you mean \"decode\"?\n"
            "Run with --help for more information.\n");
  EXPECT_THAT(RunTool({"decode", "--formt", "json"}).errors, HasSubstr("; did you mean \"--format\"?\n"));
  EXPECT_THAT(RunTool({"decode", "--markr", "x"}).errors, HasSubstr("; did you mean \"--marker\"?\n"));
  EXPECT_THAT(RunTool({"kinds", "turnBuble"}).errors, HasSubstr("; did you mean \"turnBubble\"?\n"));
  for (const auto& result :
       {RunTool({"nonsense"}), RunTool({"decode", "--bogus"}), RunTool({"kinds", "bogus"})}) {
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors.find("did you mean"), std::string::npos) << result.errors;
  }
}

TEST(CommandLineTest, HelpAndVersionIntoAFullDiskAreTrouble) {
  for (const std::string what : {"--help", "--version", "decode --help"}) {
    const ToolResult full = RunShell("\"$TOOL\" " + what + " > /dev/full");
    EXPECT_EQ(full.status, 2) << what;
    EXPECT_EQ(full.errors, "kavrix-resource: cannot write standard output: No space left on device\n")
        << what;
  }
}

TEST(CommandLineTest, HelpAndVersionSucceed) {
  const ToolResult help = RunTool({"--help"});
  EXPECT_EQ(help.status, 0);
  EXPECT_THAT(help.output, HasSubstr("decode"));
  EXPECT_EQ(RunTool({"decode", "--help"}).status, 0);
  const ToolResult version = RunTool({"--version"});
  EXPECT_EQ(version.status, 0);
  EXPECT_EQ(version.output, "kavrix-resource " KAVRIX_VERSION "\n");
}

TEST(CommandLineTest, EveryCommandHasItsTestsAndItsPlaceInTheTour) {
  const std::vector<std::string> commands = ToolCommands();
  EXPECT_THAT(commands, Contains("decode"));
  const std::string page = ReadFile(KAVRIX_SOURCE_DIR "/docs/tool.md");
  for (const std::string& command : commands) {
    const std::string tests = "tests/tools/" + command + "_command_test.cpp";
    EXPECT_TRUE(std::filesystem::exists(KAVRIX_SOURCE_DIR "/" + tests)) << tests << " is missing";
    EXPECT_NE(page.find("kavrix-resource " + command + " "), std::string::npos)
        << "docs/tool.md does not show kavrix-resource " << command;
  }
}

// The files that the examples of the help texts read.
constexpr char kExampleFiles[] =
    "folder=$(mktemp -d) && cd \"$folder\" || exit; trap 'rm -rf \"$folder\"' EXIT; set -o pipefail;"
    "kavrix-resource() { \"$TOOL\" \"$@\"; }; man() { [ \"$*\" = '-l -' ] && cat; };"
    "kavrix-resource config --default | tee old.json > my.json; cp old.json new.json;"
    "echo 'kavrix://resource/Main St_0@12.labelBubble' | tee names.txt > client.log;";

TEST(CommandLineTest, EveryExampleOfAHelpTextRuns) {
  for (const std::string& command : ToolCommands()) {
    int examples = 0;
    for (const std::string& line : RunTool({command, "--help"}).Lines()) {
      if (line.rfind("Example: ", 0) != 0) continue;
      ++examples;
      EXPECT_THAT(line, HasSubstr("kavrix-resource " + command + " "));
      const ToolResult result = RunProgram(
          {"/bin/bash", "-c", std::string("TOOL='" KAVRIX_TOOL "';") + kExampleFiles + line.substr(9)});
      EXPECT_EQ(result.errors, "") << line;
      EXPECT_EQ(result.status, command == "shrink" ? 1 : 0) << line;  // which takes a name that fails
    }
    EXPECT_GT(examples, 0) << command;
  }
}

TEST(CommandLineTest, HelpNamesWhatAnOptionTakesAndTheDefaultOfANumber) {
  const std::string help = RunTool({"decode", "--help"}).output;
  EXPECT_THAT(help, HasSubstr("  --config FILE "));
  EXPECT_THAT(help, HasSubstr("  --format text|json "));
  EXPECT_THAT(help, HasSubstr("Number of threads that work, 1 to 256; by default 1\n"));
}

}  // namespace
}  // namespace kavrix::test
