#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include "tests/support/tool.h"

// Tests which files --config reads and which it refuses.
namespace kavrix::test {
namespace {

using ::testing::HasSubstr;

const std::string kName = "kavrix://resource/{}.markerBubble";
const std::string kConfig = R"({"marker_bubble":{"name":"configured"}})";

// Decodes one name with a pipe for --config, into which `source` writes.
ToolResult DecodeUnderPipe(const std::string& source) {
  return RunShell(source + " | \"$TOOL\" decode --config /dev/stdin '" + kName + "'");
}

TEST(ConfigOptionTest, PipesOfEveryKindAreRead) {
  const std::string variables = "export TOOL CONFIG='" + kConfig + "' NAME='" + kName + "'; ";
  const std::string commands[] = {
      R"(echo "$CONFIG" | "$TOOL" decode --config /dev/stdin "$NAME")",
      R"(pipe=$(mktemp -u); mkfifo $pipe; (echo "$CONFIG" > $pipe) & "$TOOL" decode --config $pipe "$NAME"; rm $pipe)",
      R"(bash -c '"$TOOL" decode --config <(echo "$CONFIG") "$NAME"')",
  };
  for (const std::string& command : commands) {
    const ToolResult result = RunShell(variables + command);
    EXPECT_EQ(result.errors, "") << command;
    EXPECT_THAT(result.output, HasSubstr(R"("style_name":"configured")")) << command;
  }
}

TEST(ConfigOptionTest, RegularFileIsReadThroughALinkToo) {
  const ToolResult result =
      RunShell("file=$(mktemp); printf '%s' '" + kConfig + "' > $file; ln -s $file $file.link; " +
               "\"$TOOL\" decode --config $file.link '" + kName + "'; rm $file $file.link");
  EXPECT_THAT(result.output, HasSubstr(R"("style_name":"configured")"));
}

TEST(ConfigOptionTest, DevicesFoldersAndSocketsAreRefused) {
  sockaddr_un address = {};
  address.sun_family = AF_UNIX;
  const std::string socket_path = "/tmp/kavrix_test_" + std::to_string(getpid()) + ".socket";
  socket_path.copy(address.sun_path, sizeof address.sun_path - 1);
  const int socket_descriptor = socket(AF_UNIX, SOCK_STREAM, 0);
  ASSERT_EQ(bind(socket_descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
  for (const std::string& path :
       {std::string("/dev/zero"), std::string("/dev/null"), std::string("/tmp"), socket_path}) {
    const ToolResult result = RunTool({"decode", "--config", path, "x"});
    EXPECT_EQ(result.status, 2) << path;
    EXPECT_EQ(result.output, "") << path;
    EXPECT_EQ(result.errors,
              "kavrix-resource: cannot read " + path + ": neither a regular file nor a pipe\n");
  }
  close(socket_descriptor);
  unlink(socket_path.c_str());
}

TEST(ConfigOptionTest, SixteenMebibytesAreReadAndNoByteMore) {
  const std::string blanks = "head -c 16777214 /dev/zero | tr '\\0' ' '";
  EXPECT_EQ(DecodeUnderPipe("(printf '{}'; " + blanks + ")").status, 0);
  const ToolResult pipe = DecodeUnderPipe("(printf '{} '; " + blanks + ")");
  EXPECT_EQ(pipe.status, 2);
  EXPECT_EQ(pipe.errors, "kavrix-resource: cannot read /dev/stdin: larger than 16 MiB\n");
  const ToolResult file = RunShell("file=$(mktemp); (printf '{} '; " + blanks +
                                   ") > $file; \"$TOOL\" decode --config $file x; rm $file");
  EXPECT_THAT(file.errors, HasSubstr(": larger than 16 MiB\n"));
}

TEST(ConfigOptionTest, EndlessPipeIsRefusedAtTheLimit) {
  EXPECT_EQ(DecodeUnderPipe("yes '{}'").errors,
            "kavrix-resource: cannot read /dev/stdin: larger than 16 MiB\n");
}

TEST(ConfigOptionTest, ErrorHasPathLineAndColumn) {
  EXPECT_EQ(
      DecodeUnderPipe("printf '{\\n  \"context_name\": 5.\\n}'").errors,
      "kavrix-resource: /dev/stdin: not valid JSON: Line 2, Column 21: expected a digit, found U+000A\n");
}

TEST(ConfigOptionTest, LongNumberGivesAShortMessage) {
  EXPECT_EQ(
      DecodeUnderPipe(R"((printf '{"multi_light_type":'; head -c 100000 /dev/zero | tr '\0' 7; printf '}'))")
          .errors,
      "kavrix-resource: /dev/stdin: multi_light_type: expected a 32-bit integer, found " +
          std::string(60, '7') + "...\n");
}

}  // namespace
}  // namespace kavrix::test
