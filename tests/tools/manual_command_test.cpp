#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <regex>

#include "tests/support/tool.h"
#include "tools/manual.h"

namespace kavrix::test {
namespace {

using ::testing::ContainsRegex;
using ::testing::HasSubstr;

// The text that groff makes of a page, in lines of any length. Expects that it has nothing to say of the
// page.
std::string Rendered(const std::string& page) {
  const ToolResult result =
      RunProgram({"/usr/bin/groff", "-ww", "-man", "-Tascii", "-rLL=1000n", "-P-cbou"}, page);
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.errors, "");
  return result.output;
}

std::string RenderedManual(const std::vector<std::string>& command) {
  std::vector<std::string> arguments = {"manual"};
  arguments.insert(arguments.end(), command.begin(), command.end());
  const ToolResult manual = RunTool(arguments);
  EXPECT_EQ(manual.status, 0);
  EXPECT_EQ(manual.errors, "");
  return Rendered(manual.output);
}

TEST(ManualCommandTest, PageOfTheToolNamesEveryCommandAndOption) {
  const std::string page = RenderedManual({});
  for (const std::string& command : ToolCommands()) {
    EXPECT_THAT(page, ContainsRegex("\n       " + command + "[ \n]")) << "in COMMANDS";
    EXPECT_THAT(page, HasSubstr("kavrix-resource-" + command + "(1)")) << "in SEE ALSO";
  }
  EXPECT_THAT(page, HasSubstr("NAME\n       kavrix-resource - Decode, explain and build the resource names"));
  EXPECT_THAT(page, HasSubstr("kavrix-resource COMMAND [OPTION]..."));
  for (const std::string text : {"-h, --help", "--version", "EXIT STATUS\n       0 success; 1 a name,"}) {
    EXPECT_THAT(page, HasSubstr(text));
  }
  EXPECT_THAT(page, HasSubstr("kavrix-resource " KAVRIX_VERSION));
}

TEST(ManualCommandTest, PageOfACommandHasAllThatItsHelpTells) {
  const std::regex option_line("^  (?:-h,)?(--[a-z-]+|[A-Z]+)(?: ([^ ]+))? +(.+)$");
  for (const std::string& command : ToolCommands()) {
    SCOPED_TRACE(command);
    const std::string page = RenderedManual({command});
    EXPECT_THAT(page, HasSubstr("\n       kavrix-resource " + command + " [OPTION]..."));
    EXPECT_THAT(page, HasSubstr("SEE ALSO\n       kavrix-resource(1)\n"));
    int options = 0;
    int examples = 0;
    const ToolResult help = RunTool({command, "--help"});
    for (const std::string& line : help.Lines()) {
      std::smatch match;
      if (std::regex_match(line, match, option_line)) {
        ++options;
        const bool has_value = match[2].matched && match[2] != "...";
        EXPECT_THAT(page, HasSubstr(match[1].str() + (has_value ? " " + match[2].str() : ""))) << line;
        EXPECT_THAT(page, HasSubstr(match[3].str() + ".\n")) << line;
      } else if (line.rfind("Example: ", 0) == 0) {
        ++examples;
        EXPECT_THAT(page, HasSubstr("\n       " + line.substr(9) + "\n"));
      } else if (line.rfind("Exit status: ", 0) == 0) {
        EXPECT_THAT(page, HasSubstr("EXIT STATUS\n       " + line.substr(13)));
      }
    }
    EXPECT_GT(options, 0);
    EXPECT_GT(examples, 0);
    EXPECT_THAT(help.output, HasSubstr("\nExit status: "));
  }
}

TEST(ManualCommandTest, CharactersThatRoffReadsArePrintedAsTheyAre) {
  tools::CommandHelp command;
  command.name = "try";
  command.help = "Try what 'roff' reads";
  command.details =
      ".PP is no request\n'nor this: C:\\new\\\\ ^caret ~tilde `tick` --option \"text\" \\fBbold.";
  command.exit_status = ".0";
  command.options = {{"--with-dash", "A-B", "", ".leading dot", {}}};
  command.examples = {".profile 'a b' ~/x^2 `cat` \\n"};
  const std::string page = Rendered(tools::ManualOf(command));
  for (const std::string text :
       {"kavrix-resource-try - Try what 'roff' reads\n",
        ".PP is no request 'nor this: C:\\new\\\\ ^caret ~tilde `tick` --option \"text\" \\fBbold.\n",
        "       --with-dash A-B\n              .leading dot.\n", "EXIT STATUS\n       .0\n",
        "EXAMPLES\n       .profile 'a b' ~/x^2 `cat` \\n\n"}) {
    EXPECT_THAT(page, HasSubstr(text));
  }
}

TEST(ManualCommandTest, SynopsisSaysHowManyArgumentsThereMayBe) {
  const auto synopsis = [](const std::string& command) {
    const std::string page = Rendered(RunTool({"manual", command}).output);
    const std::size_t begin = page.find("kavrix-resource " + command + " [OPTION]...");
    return page.substr(begin, page.find('\n', begin) - begin);
  };
  EXPECT_EQ(synopsis("decode"), "kavrix-resource decode [OPTION]... [NAME]...");
  EXPECT_EQ(synopsis("draw"), "kavrix-resource draw [OPTION]... [NAME]");
  EXPECT_EQ(synopsis("completion"), "kavrix-resource completion [OPTION]... SHELL");
  EXPECT_EQ(synopsis("config"), "kavrix-resource config [OPTION]...");
  EXPECT_THAT(RunTool({"draw", "--help"}).output, HasSubstr("draw [OPTIONS] [NAME]\n"));
}

TEST(ManualCommandTest, UnknownCommandsAreUsageErrorsWithTheNearest) {
  const ToolResult near = RunTool({"manual", "decod"});
  EXPECT_EQ(near.status, 2);
  EXPECT_EQ(near.output, "");
  EXPECT_THAT(near.errors, HasSubstr("no command is called \"decod\"; did you mean \"decode\"?\n"));
  EXPECT_EQ(RunTool({"manual", "decode", "explain"}).status, 2);
}

TEST(ManualCommandTest, FullDiskIsTrouble) {
  EXPECT_EQ(RunShell("\"$TOOL\" manual > /dev/full").status, 2);
  EXPECT_EQ(RunShell("\"$TOOL\" completion bash > /dev/full").status, 2);
}

}  // namespace
}  // namespace kavrix::test
