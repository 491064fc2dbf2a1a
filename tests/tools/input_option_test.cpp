#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/read_file.h"
#include "tests/support/tool.h"

// Tests --input of the commands that take names.
namespace kavrix::test {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

const std::string kSamples = KAVRIX_SOURCE_DIR "/samples/traffic_bubble.txt";

TEST(InputOptionTest, FileAndDashAreReadAsStandardInputIs) {
  const std::string names = ReadFile(kSamples);
  for (const std::string command : {"decode", "explain", "check", "shrink", "gallery"}) {
    const ToolResult expected = RunTool({command}, names);
    for (const ToolResult& result :
         {RunTool({command, "--input", kSamples}), RunTool({command, "--input", "-"}, names),
          RunTool({command, "--input=" + kSamples, "--jobs", "3"}, "not read")}) {
      EXPECT_EQ(result.status, expected.status) << command;
      EXPECT_EQ(result.output, expected.output) << command;
      EXPECT_EQ(result.errors, expected.errors) << command;
    }
  }
}

TEST(InputOptionTest, CompareReadsTheNamesForTwoConfigurations) {
  const std::string shell =
      "config=/tmp/kavrix_test_$$.json; \"$TOOL\" config --default | sed 's/\"traffic\"/\"other\"/' > "
      "$config; "
      "\"$TOOL\" compare --config $config --config '" KAVRIX_SOURCE_DIR "/samples/default_config.json' ";
  const ToolResult result =
      RunShell(shell + "--input '" + kSamples + "'; status=$?; rm $config; exit $status");
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.output, HasSubstr(R"("old":"other","new":"traffic")"));
  EXPECT_EQ(RunShell(shell + "< '" + kSamples + "'; rm $config").output, result.output);
}

TEST(InputOptionTest, CompareOfTwoNamesOrTwoFilesHasNoInput) {
  for (const ToolResult& result :
       {RunTool({"compare", "--input", kSamples, "a", "b"}), RunTool({"compare", "--input", kSamples}),
        RunTool({"compare", "--decoded", "--input", kSamples, "a", "b"})}) {
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(result.errors, HasSubstr("Run with --help"));
  }
}

TEST(InputOptionTest, EncodeReadsItsLines) {
  const std::string lines = RunTool({"decode", "--fields", "--input", kSamples}).output;
  const ToolResult expected = RunTool({"encode"}, lines);
  ASSERT_EQ(expected.status, 0);
  const ToolResult result = RunShell("\"$TOOL\" decode --fields --input '" + kSamples +
                                     "' > /tmp/kavrix_test_$$; \"$TOOL\" encode --input /tmp/kavrix_test_$$; "
                                     "rm /tmp/kavrix_test_$$");
  EXPECT_EQ(result.output, expected.output);
}

TEST(InputOptionTest, DrawTakesTheOnlyNameOfTheFile) {
  const std::string shell = "head -n 1 '" + kSamples + "' > /tmp/kavrix_test_$$; ";
  const std::string remove = "; rm /tmp/kavrix_test_$$";
  const ToolResult result = RunShell(shell + "\"$TOOL\" draw --input /tmp/kavrix_test_$$" + remove);
  EXPECT_THAT(result.output, StartsWith("<svg"));
  EXPECT_EQ(result.output, RunShell("head -n 1 '" + kSamples + "' | \"$TOOL\" draw").output);
  EXPECT_EQ(RunTool({"draw", "--input", kSamples}).status, 2);
}

TEST(InputOptionTest, CheckNamesTheFile) {
  const ToolResult result = RunShellInFolder(
      "printf 'kavrix://resource/{\"mode\":0}.trafficBubble\\nx\\n' > names; "
      "\"$TOOL\" check --input names");
  EXPECT_EQ(result.output, "names:2:0: error: no marker of a kind occurs in the name [no-marker]\n");
  EXPECT_THAT(RunTool({"check", "--input", "-"}, "x\n").output, StartsWith("-:1:0: error: "));
}

TEST(InputOptionTest, NullEndsTheNamesOfAFileToo) {
  const ToolResult result = RunShell(
      "printf 'a\\nb\\0c' > /tmp/kavrix_test_$$; \"$TOOL\" decode --null --input /tmp/kavrix_test_$$; "
      "rm /tmp/kavrix_test_$$");
  const auto lines = result.JsonLines();
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0].at("resource_name"), "a\nb");
}

TEST(InputOptionTest, NamesAsArgumentsTooAreAUsageError) {
  for (const std::string command : {"decode", "explain", "check", "shrink", "gallery", "draw"}) {
    const ToolResult result = RunTool({command, "--input", kSamples, "x"});
    EXPECT_EQ(result.status, 2) << command;
    EXPECT_EQ(result.output, "") << command;
    EXPECT_EQ(result.errors,
              "kavrix-resource: --input FILE takes the place of arguments; both are given\n"
              "Run with --help for more information.\n")
        << command;
  }
  EXPECT_EQ(RunTool({"encode", "--kind", "turnBubble", "--input", kSamples, "{}"}).status, 2);
  EXPECT_EQ(RunTool({"extract", "--input", kSamples}).status, 2);
}

TEST(InputOptionTest, FileThatCannotBeReadIsTrouble) {
  for (const std::string command : {"decode", "explain", "check", "shrink", "gallery", "draw", "encode"}) {
    const ToolResult result = RunTool({command, "--input", "/nowhere/names"});
    EXPECT_EQ(result.status, 2) << command;
    EXPECT_EQ(result.errors, "kavrix-resource: cannot open /nowhere/names: No such file or directory\n")
        << command;
  }
  EXPECT_EQ(RunTool({"decode", "--input", "/tmp"}).errors,
            "kavrix-resource: cannot read /tmp: Is a directory\n");
}

TEST(InputOptionTest, GalleryOfAFileWithoutNamesHasNoSamples) {
  const ToolResult result = RunTool({"gallery", "--input", "/dev/null"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.errors, "");
  EXPECT_EQ(result.output.find("<svg"), std::string::npos);
  EXPECT_THAT(RunTool({"gallery"}).output, HasSubstr("<svg"));
}

}  // namespace
}  // namespace kavrix::test
