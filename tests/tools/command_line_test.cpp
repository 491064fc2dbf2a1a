#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/tool.h"

namespace kavrix::test {
namespace {

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

}  // namespace
}  // namespace kavrix::test
