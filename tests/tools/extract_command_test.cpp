#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "tests/support/effort.h"
#include "tests/support/generated_log.h"
#include "tests/support/tool.h"

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

const std::string kPrefix = "kavrix://resource/";

// A folder of files, gone with the test.
class ExtractCommandTest : public ::testing::Test {
 protected:
  ExtractCommandTest() { std::filesystem::create_directories(folder_); }
  ~ExtractCommandTest() override { std::filesystem::remove_all(folder_); }

  std::string File(const std::string& name, const std::string& text) const {
    const std::string path = folder_ / name;
    std::ofstream(path, std::ios::binary) << text;
    return path;
  }

  const std::filesystem::path folder_ =
      std::filesystem::temp_directory_path() / ("kavrix-extract-" + std::to_string(::getpid()));
};

TEST_F(ExtractCommandTest, PrintsOneNameALine) {
  const ToolResult result =
      RunTool({"extract"}, "a " + kPrefix + "1.turnBubble b\nc\n" + kPrefix + "2.turnBubble");
  EXPECT_EQ(result.output, kPrefix + "1.turnBubble\n" + kPrefix + "2.turnBubble\n");
  EXPECT_EQ(result.errors, "");
  EXPECT_EQ(result.status, 0);
}

TEST_F(ExtractCommandTest, NoNameIsASuccessToo) {
  for (const std::string input : {"", "\n", "nothing here\n"}) {
    const ToolResult result = RunTool({"extract"}, input);
    EXPECT_EQ(result.output + result.errors, "");
    EXPECT_EQ(result.status, 0);
  }
}

TEST_F(ExtractCommandTest, JsonAddsFileLineAndByte) {
  const std::string first = File("a.log", "x\n\nab " + kPrefix + "1.turnBubble\n");
  const std::string input = kPrefix + "\"2\".turnBubble\n";
  const ToolResult result = RunTool({"extract", "--format", "json", first, "-"}, input);
  EXPECT_EQ(result.output, "{\"resource_name\":\"" + kPrefix + "1.turnBubble\",\"file\":\"" + first +
                               "\",\"line\":3,\"byte\":3}\n{\"resource_name\":\"" + kPrefix +
                               "\\\"2\\\".turnBubble\",\"file\":\"-\",\"line\":1,\"byte\":0}\n");
  EXPECT_EQ(result.status, 0);
}

TEST_F(ExtractCommandTest, UniquePrintsANameWhereItIsFirst) {
  const std::string a = kPrefix + "a.turnBubble";
  const std::string b = kPrefix + "b.turnBubble";
  const std::string file = File("a.log", b + "\n" + a + " " + b + "\n");
  EXPECT_EQ(RunTool({"extract", "--unique", file, file}).output, b + "\n" + a + "\n");
  const auto lines = RunTool({"extract", "--unique", "--format", "json", file, file}).JsonLines();
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[1].at("line"), 2);
  EXPECT_EQ(lines[1].at("byte"), 0);
}

TEST_F(ExtractCommandTest, JobsMakeNoDifference) {
  const GeneratedLog log = GenerateLog(Seed(), 3000);
  const std::string file = File("a.log", log.text);
  for (const std::string format : {"text", "json"}) {
    const std::string alone = RunTool({"extract", "--format", format, file}).output;
    EXPECT_TRUE(alone == RunTool({"extract", "--format", format, "--jobs", "4", file}).output) << format;
    EXPECT_TRUE(alone == RunTool({"extract", "--format", format, "--unbuffered", file}).output) << format;
  }
  EXPECT_EQ(RunTool({"extract", "--format", "json", file}).Lines().size(), log.names.size());
}

TEST_F(ExtractCommandTest, JsonLinesAreDecoded) {
  const std::string line = R"({"msg":"got kavrix:\/\/resource/{\"mode\":0}.trafficBubble"})";
  EXPECT_EQ(RunTool({"extract", "--json"}, line).output, kPrefix + "{\"mode\":0}.trafficBubble\n");
  const auto found = RunTool({"extract", "--json", "--format", "json"}, "[]\n" + line).JsonLines();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].at("line"), 2);
  EXPECT_EQ(found[0].at("byte"), 12);
}

TEST_F(ExtractCommandTest, LineThatIsNotJsonIsToldOfByPlaceAndTheRestGoesOn) {
  const std::string file = File(
      "a.jsonl", "{\"msg\":\"" + kPrefix + "1.turnBubble\"}\nnot json\n\"" + kPrefix + "2.turnBubble\"\n");
  const ToolResult result = RunTool({"extract", "--json", file});
  EXPECT_EQ(result.output, kPrefix + "1.turnBubble\n" + kPrefix + "2.turnBubble\n");
  EXPECT_EQ(result.errors, "kavrix-resource: " + file + ":2:1: not JSON: expected true, false or null\n");
  EXPECT_EQ(result.status, 2);
}

TEST_F(ExtractCommandTest, FileThatCannotBeReadDoesNotStopTheOthers) {
  const std::string file = File("a.log", kPrefix + "1.turnBubble\n");
  const ToolResult result = RunTool({"extract", "/no/such/file", file, folder_, file});
  EXPECT_EQ(result.output, kPrefix + "1.turnBubble\n" + kPrefix + "1.turnBubble\n");
  EXPECT_EQ(result.errors,
            "kavrix-resource: cannot open /no/such/file: No such file or directory\n"
            "kavrix-resource: cannot read " +
                folder_.string() + ": Is a directory\n");
  EXPECT_EQ(result.status, 2);
}

TEST_F(ExtractCommandTest, FilesThatHideTheirNamesAreToldOf) {
  using std::string_literals::operator""s;
  const std::string name = kPrefix + "1.turnBubble\n";
  const std::vector<std::pair<std::string, std::string>> hidden = {
      {"\x1F\x8B\x08"s, "compressed by gzip; read it with zcat"},
      {"\x28\xB5\x2F\xFD"s, "compressed by zstd; read it with zstdcat"},
      {"\xFD"
       "7zXZ\0"s,
       "compressed by xz; read it with xzcat"},
      {"BZh91AY&SY", "compressed by bzip2; read it with bzcat"},
      {"\xFF\xFE"
       "a\0"s,
       "UTF-16; read it with iconv -f UTF-16 -t UTF-8"},
  };
  for (const auto& [bytes, format] : hidden) {
    const std::string file = File("hidden", bytes + "\n" + name);
    const ToolResult result = RunTool({"extract", file, File("a.log", name)});
    EXPECT_EQ(result.output, name);
    EXPECT_EQ(result.errors, "kavrix-resource: " + file + ": no text: it is " + format + "\n");
    EXPECT_EQ(result.status, 2);
  }
}

TEST_F(ExtractCommandTest, TextThatBeginsAlmostLikeACompressedFileIsText) {
  EXPECT_EQ(RunTool({"extract"}, "BZhang says " + kPrefix + "1.turnBubble\n").output,
            kPrefix + "1.turnBubble\n");
  for (const std::string text : {"B", "BZ", "BZh", "BZh9", "BZh91AY&S"}) {
    const ToolResult result = RunTool({"extract"}, text);
    EXPECT_EQ(result.errors, "") << text;
    EXPECT_EQ(result.status, 0) << text;
  }
}

TEST_F(ExtractCommandTest, PipeWithANameLosesNothing) {
  const std::string pipe = folder_ / "pipe";
  for (int i = 0; i < 10; ++i) {
    const ToolResult result = RunShell("[ -p " + pipe + " ] || mkfifo " + pipe + "; printf '" + kPrefix +
                                       "1.turnBubble\n' > " + pipe + " & timeout 20 $TOOL extract " + pipe);
    EXPECT_EQ(result.output, kPrefix + "1.turnBubble\n");
    EXPECT_EQ(result.status, 0);
  }
}

TEST_F(ExtractCommandTest, BytesThatAreNoTextAreSearchedLikeText) {
  using std::string_literals::operator""s;
  const ToolResult result = RunTool({"extract"},
                                    "\x7F"
                                    "ELF\0\0"s +
                                        kPrefix + "{\"content\":\"\0\xFF\"}.trafficBubble\0\0\0"s);
  EXPECT_EQ(result.output, kPrefix + "{\"content\":\"\0\xFF\"}.trafficBubble\n"s);
  EXPECT_EQ(result.status, 0);
}

TEST_F(ExtractCommandTest, LineOfAHundredMegabytesIsALineLikeOthers) {
  const std::string name = kPrefix + "{\"content\":\"" + std::string(1'000'000, 'c') + "\"}.trafficBubble";
  std::string line;
  while (line.size() < 100'000'000) line += std::string(9'000'000, ' ') + name;
  const ToolResult result =
      RunTool({"extract", "--format", "json", File("long.log", "a\n" + line + "\nb " + kPrefix + "x")});
  EXPECT_EQ(result.errors, "");
  const auto lines = result.JsonLines();
  ASSERT_EQ(lines.size(), 11U);
  for (std::size_t i = 0; i < 10; ++i) {
    EXPECT_EQ(lines[i].at("resource_name"), name);
    EXPECT_EQ(lines[i].at("line"), 2);
    EXPECT_EQ(lines[i].at("byte"), i * (9'000'000 + name.size()) + 9'000'000);
  }
  EXPECT_EQ(lines[10].at("line"), 3);
}

TEST_F(ExtractCommandTest, NameThatHoldsANewlineIsPrintedOnlyAsJson) {
  const std::string line =
      "routine KavrixMapLayerMgr GetBubbleDrawDescriptor f.cpp:1 [Kavrix][m]resource_name:" + kPrefix +
      R"({"content":"a\nb"}.trafficBubble)";
  const ToolResult text = RunTool({"extract"}, line);
  EXPECT_EQ(text.output, "");
  EXPECT_EQ(
      text.errors,
      "kavrix-resource: name 1: in -: it holds a newline, which would end it; --format json prints it\n");
  EXPECT_EQ(text.status, 2);
  EXPECT_EQ(RunTool({"extract", "--format", "json"}, line).JsonLines().at(0).at("resource_name"),
            kPrefix + "{\"content\":\"a\nb\"}.trafficBubble");
}

TEST_F(ExtractCommandTest, PrefixCanBeAnother) {
  EXPECT_EQ(
      RunTool({"extract", "--prefix", "app://"}, "app://1.turnBubble\n" + kPrefix + "2.turnBubble").output,
      "app://1.turnBubble\n");
  const ToolResult empty = RunTool({"extract", "--prefix", ""}, "a");
  EXPECT_EQ(empty.status, 2);
  EXPECT_THAT(empty.errors, StartsWith("kavrix-resource: --prefix is empty; names are found by it\n"));
  for (const std::string prefix : {" ", "a\nb", "a\r"}) {
    const ToolResult result = RunTool({"extract", "--prefix", prefix}, "a b\n");
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.errors,
                StartsWith("kavrix-resource: --prefix holds a blank or the end of a line; no name "));
  }
}

TEST_F(ExtractCommandTest, NamesGoOnToOtherCommands) {
  const ToolResult result =
      RunShell("printf 'x kavrix://resource/{\"mode\":0}.trafficBubble y\\n' | $TOOL extract | $TOOL decode");
  ASSERT_EQ(result.JsonLines().size(), 1U);
  EXPECT_EQ(result.JsonLines()[0].at("kind"), "trafficBubble");
}

TEST_F(ExtractCommandTest, NamesAreNotHeldBackWhileTheLogPauses) {
  // The reader takes its line while the log is still open.
  const ToolResult result =
      RunShell("mkfifo " + (folder_ / "log").string() + "; $TOOL extract " + (folder_ / "log").string() +
               " | { read -r name; echo \"got $name\" > " + (folder_ / "got").string() +
               "; cat > /dev/null; } & "
               "exec 3> " +
               (folder_ / "log").string() +
               "; printf 'kavrix://resource/1.turnBubble\\n' >&3; "
               "for i in $(seq 1000); do [ -s " +
               (folder_ / "got").string() + " ] && break; sleep 0.01; done; cat " +
               (folder_ / "got").string() + "; exec 3>&-; wait");
  EXPECT_THAT(result.output, HasSubstr("got kavrix://resource/1.turnBubble"));
}

TEST_F(ExtractCommandTest, ReaderThatGoesAwayEndsTheCommandWithoutAMessage) {
  const std::string file = File("a.log", GenerateLog(1, 20'000).text);
  const ToolResult result = RunShell("{ $TOOL extract " + file + "; echo $? >&2; } | head -1");
  EXPECT_EQ(result.errors, "141\n");
}

}  // namespace
}  // namespace kavrix::test
