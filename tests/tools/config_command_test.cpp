#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/read_file.h"
#include "tests/support/tool.h"

namespace kavrix::test {
namespace {

using ::testing::HasSubstr;

const std::string kDefaultConfig = KAVRIX_SOURCE_DIR "/samples/default_config.json";

TEST(ConfigCommandTest, DefaultIsTheSampleFileByteForByte) {
  const ToolResult result = RunTool({"config", "--default"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.errors, "");
  ASSERT_NE(result.output, "");
  EXPECT_EQ(result.output, ReadFile(kDefaultConfig));
}

TEST(ConfigCommandTest, CheckIsSilentForAFileThatCanBeUsed) {
  for (const ToolResult& result :
       {RunTool({"config", "--check", kDefaultConfig}), RunTool({"config", "--check", "-"}, "{}"),
        RunShell(R"(printf '{"context_name":"a"}' | "$TOOL" config --check -)")}) {
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output + result.errors, "");
  }
}

TEST(ConfigCommandTest, CheckSaysWhatIsWrongAndWhere) {
  const ToolResult input = RunTool({"config", "--check", "-"}, R"({"multi_light_type":1.5})");
  EXPECT_EQ(input.status, 1);
  EXPECT_EQ(input.output, "");
  EXPECT_EQ(input.errors,
            "kavrix-resource: standard input: multi_light_type: expected a 32-bit integer, found 1.5\n");
  const ToolResult file = RunShell(
      "file=/tmp/kavrix_test_$$.json; printf '{\"x\\033\":1}' > $file; "
      "\"$TOOL\" config --check $file; status=$?; rm $file; exit $status");
  EXPECT_EQ(file.status, 1);
  EXPECT_THAT(file.errors, HasSubstr(".json: not valid JSON: Line 1, Column "));
  const ToolResult no_json = RunTool({"config", "--check", KAVRIX_SOURCE_DIR "/README.md"});
  EXPECT_EQ(no_json.status, 1);
  EXPECT_THAT(no_json.errors, HasSubstr(KAVRIX_SOURCE_DIR "/README.md: not valid JSON: Line 1, Column 1: "));
}

TEST(ConfigCommandTest, FileThatCannotBeReadIsTrouble) {
  const ToolResult missing = RunTool({"config", "--check", "/nowhere/config.json"});
  EXPECT_EQ(missing.status, 2);
  EXPECT_EQ(missing.errors, "kavrix-resource: cannot open /nowhere/config.json: No such file or directory\n");
  EXPECT_EQ(RunTool({"config", "--check", "/tmp"}).status, 2);
  const ToolResult closed = RunShell("\"$TOOL\" config --check - <&-");
  EXPECT_EQ(closed.status, 2);
  EXPECT_EQ(closed.errors, "kavrix-resource: cannot read standard input: Bad file descriptor\n");
  const ToolResult endless = RunShell("yes '{}' | \"$TOOL\" config --check -");
  EXPECT_EQ(endless.status, 2);
  EXPECT_EQ(endless.errors, "kavrix-resource: cannot read standard input: larger than 16 MiB\n");
}

TEST(ConfigCommandTest, TakesOneOfItsTwoOptions) {
  for (const ToolResult& result :
       {RunTool({"config"}), RunTool({"config", "--default", "--check", kDefaultConfig})}) {
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(result.errors, HasSubstr("expected either --default or --check FILE\n"));
  }
  EXPECT_EQ(RunTool({"config", "--default", kDefaultConfig}).status, 2);
}

TEST(ConfigCommandTest, DefaultIntoAFullDiskIsTrouble) {
  EXPECT_EQ(RunShell("\"$TOOL\" config --default > /dev/full").status, 2);
}

}  // namespace
}  // namespace kavrix::test
