#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/tool.h"

namespace kavrix::test {
namespace {

using ::testing::ContainsRegex;
using ::testing::HasSubstr;
using ::testing::MatchesRegex;
using ::testing::Not;
using ::testing::StartsWith;

// Numbered names of 0 to 60,000 further bytes, decodable and not.
std::string NumberedNames(int count, char delimiter) {
  std::string names;
  for (int i = 0; i < count; ++i) {
    const auto size = static_cast<std::size_t>(i % 199 == 0 ? i * 7919 % 60'000 : i * 31 % 500);
    names += std::to_string(i) + R"( /resource/23{"content":")" + std::string(size, 'c');
    names += i % 3 == 0 ? "" : R"("}.trafficBubble)";
    names += delimiter;
  }
  return names;
}

TEST(BulkDecodeTest, OutputKeepsTheOrderOfTheInput) {
  const std::string names = NumberedNames(5000, '\n');
  const ToolResult result = RunTool({"decode", "--jobs", "4"}, names);
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.errors, "");
  const auto lines = result.Lines();
  ASSERT_EQ(lines.size(), 5000U);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    ASSERT_THAT(lines[i], StartsWith(R"({"resource_name":")" + std::to_string(i) + " "));
  }
  EXPECT_TRUE(result.output == RunTool({"decode", "--jobs", "1"}, names).output);
  EXPECT_TRUE(result.output == RunTool({"decode"}, names).output);
}

TEST(BulkDecodeTest, TextAndUnbufferedOutputAreTheSameToo) {
  const std::string names = NumberedNames(300, '\n');
  EXPECT_TRUE(RunTool({"decode", "--jobs", "4", "--format", "text"}, names).output ==
              RunTool({"decode", "--format", "text"}, names).output);
  EXPECT_TRUE(RunTool({"decode", "--jobs", "4", "--unbuffered"}, names).output ==
              RunTool({"decode"}, names).output);
}

TEST(BulkDecodeTest, NamesEndInNulOnDemand) {
  const ToolResult result = RunTool({"decode", "--jobs", "4", "--null"}, NumberedNames(1000, '\0'));
  EXPECT_EQ(result.Lines().size(), 1000U);
  EXPECT_TRUE(result.output == RunTool({"decode"}, NumberedNames(1000, '\n')).output);
}

TEST(BulkDecodeTest, NamesAsArgumentsKeepTheirOrder) {
  std::vector<std::string> arguments = {"decode", "--jobs", "3"};
  for (int i = 0; i < 500; ++i) arguments.push_back(std::to_string(i));
  const auto lines = RunTool(arguments).JsonLines();
  ASSERT_EQ(lines.size(), 500U);
  for (std::size_t i = 0; i < lines.size(); ++i) EXPECT_EQ(lines[i].at("resource_name"), std::to_string(i));
}

TEST(BulkDecodeTest, EmptyInputPrintsNothingAndSucceeds) {
  const ToolResult result = RunTool({"decode", "--jobs", "8"}, "");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(result.errors, "");
}

TEST(BulkDecodeTest, LastNameNeedsNoNewline) {
  EXPECT_EQ(RunTool({"decode", "--jobs", "2"}, "a\nb").JsonLines().at(1).at("resource_name"), "b");
}

TEST(BulkDecodeTest, NumberOfJobsOutOfRangeIsAUsageError) {
  for (const char* const jobs : {"0", "-1", "257", "two", "1.5", ""}) {
    const ToolResult result = RunTool({"decode", "--jobs", jobs, "x"});
    EXPECT_EQ(result.status, 2) << jobs;
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(result.errors, HasSubstr(std::string("--jobs: Value ") + jobs + " not in range 1 to 256\n"));
  }
}

// No thread can have a stack of a tebibyte.
TEST(BulkDecodeTest, ThreadsThatTheSystemDoesNotGiveAreNotNeeded) {
  if (*KAVRIX_EMULATOR != '\0') GTEST_SKIP() << "an emulator takes the stack that it was built with";
  const std::string shell = "ulimit -s 1073741824 && seq 1000 | $TOOL decode --jobs 4";
  EXPECT_TRUE(RunShell(shell).output == RunShell("seq 1000 | $TOOL decode").output);
}

TEST(BulkDecodeTest, UnreadableInputIsTrouble) {
  const ToolResult folder = RunShell("\"$TOOL\" decode --jobs 4 < /");
  EXPECT_EQ(folder.status, 2);
  EXPECT_EQ(folder.errors, "kavrix-resource: cannot read standard input: Is a directory\n");
}

TEST(BulkDecodeTest, FullDiskIsTrouble) {
  const ToolResult full = RunShell("yes | head -10000 | \"$TOOL\" decode --jobs 4 > /dev/full");
  EXPECT_EQ(full.status, 2);
  EXPECT_EQ(full.errors, "kavrix-resource: cannot write standard output: No space left on device\n");
}

TEST(BulkDecodeTest, ClosedPipeEndsTheToolThoughTheInputGoesOn) {
  const ToolResult closed = RunShell(
      "fifo=/tmp/kavrix_fifo_$$; mkfifo $fifo; (yes | head -20000; exec sleep 60) > $fifo & "
      "(timeout 30 \"$TOOL\" decode --jobs 4 < $fifo; echo status $? >&2) | head -1 > /dev/null; "
      "kill $!; rm $fifo");
  EXPECT_EQ(closed.errors, "status 141\n");
}

TEST(BulkDecodeTest, UnbufferedResultsComeBeforeTheInputEnds) {
  const ToolResult result = RunShell(
      "fifo=/tmp/kavrix_fifo_$$; mkfifo $fifo; (printf 'a\\nb\\n'; exec sleep 60) > $fifo & "
      "timeout 30 \"$TOOL\" decode --jobs 4 --unbuffered < $fifo | { head -2; kill $!; }; rm $fifo");
  const auto lines = result.JsonLines();
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0].at("resource_name"), "a");
  EXPECT_EQ(lines[1].at("resource_name"), "b");
}

constexpr const char* kSlowNames = "for i in 1 2 3 4 5 6 7 8; do echo $i; sleep 0.4; done";

TEST(BulkDecodeTest, LongRunShowsItsProgressOnATerminalAndClearsIt) {
  const ToolResult result = RunShell(
      "export TOOL; out=/tmp/kavrix_out_$$; script -qc '(" + std::string(kSlowNames) +
      ") | \"$TOOL\" decode --jobs 2 > '$out /dev/null | tr '\\r\\033' '\\n^'; wc -l < $out; rm $out");
  const auto lines = result.Lines();
  ASSERT_GE(lines.size(), 3U);
  EXPECT_EQ(lines[0], "");
  EXPECT_THAT(lines[1], MatchesRegex("\\^\\[K[5-8] names, [0-9]+ a second, [5-8] failed"));
  EXPECT_EQ(lines.back(), "^[K8");
}

// Also where results would be on the same terminal, if they come only at the end; the terminal is no input
// here.
TEST(BulkDecodeTest, CommandsThatPrintAtTheEndShowTheirProgressOnATerminal) {
  for (const std::string command : {"survey", "gallery --input"}) {
    const ToolResult result = RunShellInFolder("export TOOL; mkfifo names; (" + std::string(kSlowNames) +
                                               ") > names & script -qc '\"$TOOL\" " + command +
                                               " names' /dev/null | tr '\\r\\033' '\\n^'; wait");
    EXPECT_THAT(result.output, ContainsRegex("\\^\\[K[5-8] names, [0-9]+ a second, [5-8] failed\n"))
        << command;
  }
}

TEST(BulkDecodeTest, SummaryOfAComparisonShowsItsProgressOnATerminal) {
  const ToolResult result = RunShellInFolder(
      "export TOOL; \"$TOOL\" config --default > c; mkfifo names; (" + std::string(kSlowNames) +
      ") > names & script -qc '\"$TOOL\" compare --summary --config c --config c --input names' /dev/null "
      "| tr '\\r\\033' '\\n^'; wait");
  EXPECT_THAT(result.output, ContainsRegex("\\^\\[K[5-8] names, [0-9]+ a second, 0 failed\n"));
}

TEST(BulkDecodeTest, ProgressDoesNotDisturbNamesThatAreTyped) {
  const ToolResult result = RunShell("export TOOL; (" + std::string(kSlowNames) +
                                     "; printf '\\004') | script -qc '\"$TOOL\" survey' /dev/null");
  EXPECT_THAT(result.output, HasSubstr("8 names, 8 failed"));
  EXPECT_THAT(result.output, Not(HasSubstr("\x1B[K")));
}

TEST(BulkDecodeTest, ProgressIsCutToTheWidthOfTheTerminal) {
  const ToolResult result = RunShell("export TOOL; script -qc 'stty cols 15; (" + std::string(kSlowNames) +
                                     ") | \"$TOOL\" decode > /dev/null' /dev/null | tr '\\r\\033' '\\n^'");
  const auto lines = result.Lines();
  ASSERT_GE(lines.size(), 3U);
  for (std::size_t i = 1; i + 1 < lines.size(); ++i)
    EXPECT_THAT(lines[i], MatchesRegex("\\^\\[K[5-8] names, [0-9] a s"));
  EXPECT_EQ(lines.back(), "^[K");
}

TEST(BulkDecodeTest, ProgressTellsTheTimeLeftOfAFile) {
  const ToolResult result = RunShell(
      "export TOOL; names=/tmp/kavrix_names_$$; yes | head -2000 > $names; script -qc '\"$TOOL\" decode < "
      "'$names' "
      "| (sleep 3; cat > /dev/null)' /dev/null; rm $names");
  EXPECT_THAT(result.output, ContainsRegex("[0-9]+ names, [0-9]+ a second, [0-9]+ failed, [0-9:]+ left"));
}

TEST(BulkDecodeTest, LongRunIsSilentWithoutATerminal) {
  const ToolResult result = RunShell("(" + std::string(kSlowNames) + ") | \"$TOOL\" decode --jobs 2");
  EXPECT_EQ(result.errors, "");
  EXPECT_EQ(result.Lines().size(), 8U);
}

}  // namespace
}  // namespace kavrix::test
