#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>

#include "tests/support/tool.h"
#include "util/utf8.h"

// Tests that an error message keeps to its line and cannot control the terminal, even where it quotes input.
namespace kavrix::test {
namespace {

using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::StartsWith;

const std::string kEvil = "\x1b[31m\nkavrix-resource: forged\r\x7F\xC2\x9B\xE2\x80\xAE\xFF";
const std::string kHarmless = "\\u001b[31m\\nkavrix-resource: forged\\r\\u007f\\u009b\\u202e\xEF\xBF\xBD";

// A file with kEvil in its path.
class EvilFile {
 public:
  explicit EvilFile(const std::string& text) { std::ofstream(path_, std::ios::binary) << text; }
  EvilFile(const EvilFile&) = delete;
  EvilFile& operator=(const EvilFile&) = delete;
  ~EvilFile() { unlink(path_.c_str()); }

  const std::string& path() const { return path_; }

 private:
  std::string path_ = "/tmp/kavrix_test_" + std::to_string(getpid()) + kEvil;
};

// Expects one line of error and, for usage errors, the hint at --help.
void ExpectOneHarmlessLine(const ToolResult& result) {
  std::string line = result.errors.substr(0, result.errors.find('\n'));
  EXPECT_THAT(line, StartsWith("kavrix-resource: "));
  const std::string rest = result.errors.substr(std::min(line.size() + 1, result.errors.size()));
  EXPECT_TRUE(rest.empty() || rest == "Run with --help for more information.\n") << rest;
  EXPECT_EQ(ValidUtf8Length(line), line.size());
  for (std::string_view left = line; !left.empty(); left.remove_prefix(NextUtf8(left).length)) {
    EXPECT_FALSE(IsControl(NextUtf8(left).code_point)) << line;
  }
}

TEST(ErrorLinesTest, TextOfArgumentsIsEscaped) {
  const std::vector<std::string> commands[] = {
      {"decode", "--" + kEvil},
      {"decode", "--format", kEvil, "x"},
      {"decode", "--jobs", kEvil, "x"},
      {"decode", "--config", "/nonexistent" + kEvil, "x"},
      {"decode", "--input", "/nonexistent" + kEvil},
      {"config", "--check", "/nonexistent" + kEvil},
      {"encode", "--kind", kEvil, "{}"},
      {"encode", "--kind", "turnBubble", "{\"" + kEvil.substr(0, 5) + "\":1}"},
      {"kinds", kEvil},
      {"icons", kEvil},
  };
  for (const auto& command : commands) {
    const ToolResult result = RunTool(command);
    EXPECT_GT(result.status, 0) << command.back();
    ExpectOneHarmlessLine(result);
  }
  EXPECT_THAT(RunTool({"encode", "--kind", kEvil, "{}"}).errors,
              HasSubstr("no kind is called \"" + kHarmless + "\""));
  EXPECT_THAT(RunTool({"decode", "--" + kEvil}).errors, HasSubstr(kHarmless));
}

TEST(ErrorLinesTest, EveryCommandEscapesItsArguments) {
  const std::vector<std::string> commands = ToolCommands();
  EXPECT_THAT(commands, Contains("decode"));
  for (const std::string& command : commands) {
    SCOPED_TRACE(command);
    const ToolResult option = RunTool({command, "--" + kEvil});
    EXPECT_EQ(option.status, 2);
    EXPECT_THAT(option.errors, HasSubstr(kHarmless));
    ExpectOneHarmlessLine(option);
    const ToolResult argument = RunTool({command, kEvil});
    if (!argument.errors.empty()) ExpectOneHarmlessLine(argument);
  }
}

TEST(ErrorLinesTest, TextOfInputLinesIsEscaped) {
  const ToolResult kind = RunTool({"encode"}, R"({"kind":"\u001b[31m\nforged","fields":{}})");
  ExpectOneHarmlessLine(kind);
  EXPECT_THAT(kind.errors, HasSubstr(R"(no kind is called "\u001b[31m\nforged")"));
  ExpectOneHarmlessLine(RunTool({"encode"}, "\x1b[31m"));
}

TEST(ErrorLinesTest, PathAndTextOfConfigurationFilesAreEscaped) {
  const std::string texts[] = {
      "",
      "\x1b[31m",
      R"({"\u001b[31m\nforged":1})",
      "{\"multi_light_type\":{\n\"a\":\r\"\xE2\x80\xAE\"}}",
      "{\"multi_light_type\":\"\x7F\xC2\x9B\"}",
      "{\"\x7F\":1,\"\x7F\":2}",
  };
  for (const std::string& text : texts) {
    const EvilFile file(text);
    const ToolResult result = RunTool({"decode", "--config", file.path(), "x"});
    EXPECT_EQ(result.status, 2) << text;
    EXPECT_THAT(result.errors, HasSubstr(kHarmless)) << text;
    ExpectOneHarmlessLine(result);
    const ToolResult check = RunTool({"config", "--check", file.path()});
    EXPECT_EQ(check.status, 1) << text;
    EXPECT_EQ(check.errors, result.errors) << text;
  }
  const EvilFile file("{\"multi_light_type\":{\n\"a\":1}}");
  EXPECT_THAT(RunTool({"decode", "--config", file.path(), "x"}).errors,
              HasSubstr(R"(multi_light_type: expected a 32-bit integer, found {\n"a":1})"));
}

TEST(ErrorLinesTest, PathOfTheInputIsEscapedInProblems) {
  const EvilFile file("x\n");
  const std::string path = "/tmp/kavrix_test_" + std::to_string(getpid()) + kHarmless;
  EXPECT_EQ(RunTool({"check", "--input", file.path()}).output,
            path + ":1:0: error: no marker of a kind occurs in the name [no-marker]\n");
}

TEST(ErrorLinesTest, PathThatIsNoFileIsEscaped) {
  const ToolResult result = RunTool({"decode", "--config", "/dev/../dev/zero", "x"});
  EXPECT_EQ(result.errors,
            "kavrix-resource: cannot read /dev/../dev/zero: neither a regular file nor a pipe\n");
  ExpectOneHarmlessLine(RunTool({"decode", "--config", "/tmp/\x1b", "x"}));
}

}  // namespace
}  // namespace kavrix::test
