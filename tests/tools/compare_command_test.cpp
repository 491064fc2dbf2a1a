#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "tests/support/read_file.h"
#include "tests/support/sample_names.h"
#include "tests/support/tool.h"

namespace kavrix::test {
namespace {

using nlohmann::json;
using ::testing::HasSubstr;

constexpr const char* kOld = "kavrix://resource/A_0_0@2.nameBubble";
constexpr const char* kNew = "kavrix://resource/B_1_0@2.nameBubble";

class CompareCommandTest : public ::testing::Test {
 protected:
  CompareCommandTest() {
    std::filesystem::create_directories(folder_);
    std::string config = ReadFile(KAVRIX_SOURCE_DIR "/samples/default_config.json");
    Write("old.json", config);
    const std::size_t name = config.find("\"route_name\"");
    config.replace(name, 12, "\"other_name\"");
    Write("new.json", config);
  }
  ~CompareCommandTest() override { std::filesystem::remove_all(folder_); }

  std::string Path(const std::string& file) const { return folder_ + "/" + file; }
  void Write(const std::string& file, const std::string& text) const {
    std::ofstream(Path(file), std::ios::binary) << text;
  }

 private:
  const std::string folder_ = "/tmp/kavrix_compare_test_" + std::to_string(getpid());
};

TEST_F(CompareCommandTest, TwoNamesDifferInTheirMembers) {
  const ToolResult result = RunTool({"compare", kOld, kNew});
  EXPECT_EQ(result.status, 1);
  ASSERT_EQ(result.JsonLines().size(), 1U);
  EXPECT_EQ(result.JsonLines()[0], json::parse(R"({
    "resource_names": ["kavrix://resource/A_0_0@2.nameBubble", "kavrix://resource/B_1_0@2.nameBubble"],
    "differs": [{"member": "content", "old": "A", "new": "B"},
                {"member": "mode_flag", "old": true, "new": false}]})"));
}

TEST_F(CompareCommandTest, SameNamesDifferInNothing) {
  const ToolResult result = RunTool({"compare", kOld, kOld});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.JsonLines()[0].at("differs"), json::array());
}

TEST_F(CompareCommandTest, KindIsAMemberAndWhatOneSideLacksIsNull) {
  const auto differs = RunTool({"compare", kOld, "kavrix://resource/{\"cameras\":[{}]}.cameraBubble"})
                           .JsonLines()[0]
                           .at("differs");
  EXPECT_EQ(differs[0], json::parse(R"({"member": "kind", "old": "nameBubble", "new": "cameraBubble"})"));
  EXPECT_THAT(differs,
              ::testing::Contains(json::parse(R"({"member": "cameras[0].type", "old": null, "new": 0})")));
  const auto against_nothing = RunTool({"compare", kOld, "hello"}).JsonLines()[0].at("differs");
  EXPECT_EQ(against_nothing[0], json::parse(R"({"member": "kind", "old": "nameBubble", "new": null})"));
  EXPECT_EQ(against_nothing[1], json::parse(R"({"member": "scene", "old": 0, "new": null})"));
}

TEST_F(CompareCommandTest, ConfigurationsAreComparedNameByName) {
  const std::string names = std::string(kOld) + "\nkavrix://resource/A_0_1@2.nameBubble\n" + kNew + "\n";
  const ToolResult result =
      RunTool({"compare", "--config", Path("old.json"), "--config", Path("new.json"), "--jobs", "2"}, names);
  EXPECT_EQ(result.status, 1);
  const auto lines = result.JsonLines();
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0], json::parse(R"({
    "resource_name": "kavrix://resource/A_0_0@2.nameBubble",
    "differs": [{"member": "style_name", "old": "route_name", "new": "other_name"}]})"));
  EXPECT_EQ(lines[1].at("resource_name"), kNew);
  const ToolResult same =
      RunTool({"compare", "--config", Path("old.json"), "--config", Path("old.json")}, names);
  EXPECT_EQ(same.status, 0);
  EXPECT_EQ(same.output, "");
}

TEST_F(CompareCommandTest, SummaryCountsNamesAndShowsTheShortestThenFirst) {
  const std::string names =
      "kavrix://resource/long_0_0@2.nameBubble\n" + std::string(kNew) + "\n" + kOld + "\n";
  const ToolResult result =
      RunTool({"compare", "--summary", "--config", Path("old.json"), "--config", Path("new.json")}, names);
  EXPECT_EQ(result.status, 1);
  ASSERT_EQ(result.JsonLines().size(), 1U);
  EXPECT_EQ(result.JsonLines()[0], json::parse(R"({
    "kind": "nameBubble", "member": "style_name", "old": "route_name", "new": "other_name", "names": 3,
    "example": "kavrix://resource/A_0_0@2.nameBubble"})"));
}

TEST_F(CompareCommandTest, SummaryOrdersKindsAsRecognisedAndMembersAsDeclared) {
  std::string config = ReadFile(Path("old.json"));
  for (const char* const record : {"\"turn_style\"", "\"eta_style\"", "\"traffic_style\""}) {
    const std::size_t name = config.find("\"name\": \"", config.find(record));
    ASSERT_NE(name, std::string::npos) << record;
    config.insert(name + 9, "new_");
  }
  const std::size_t word = config.find("0xffe5484d", config.find("\"traffic_style\""));
  ASSERT_NE(word, std::string::npos);
  config.replace(word, 10, "0xff000000");
  Write("new.json", config);
  std::string names;
  for (const SampleName& sample : SampleNames()) {
    if (!sample.is_marker) names.insert(0, sample.name + "\n");
  }
  std::vector<std::string> seen;
  for (const auto& line :
       RunTool({"compare", "--summary", "--config", Path("old.json"), "--config", Path("new.json")}, names)
           .JsonLines()) {
    seen.push_back(line.at("kind").get<std::string>() + " " + line.at("member").get<std::string>());
  }
  EXPECT_THAT(seen, ::testing::ElementsAre("trafficBubble style_name", "trafficBubble style_word",
                                           "etaBubble style_name", "turnBubble style_name"));
}

TEST_F(CompareCommandTest, SummaryDoesNotDependOnTheLengthsOfLists) {
  std::string config = ReadFile(Path("old.json"));
  const std::size_t record = config.find("\"camera_style\"");
  const std::size_t name = config.find("\"name\": \"", record);
  config.insert(name + 9, "new_");
  const std::size_t word = config.find("0xff", record);
  config.replace(word, 4, "0xee");
  Write("new.json", config);
  const std::string names =
      "kavrix://resource/{\"mode\":0}.cameraBubble\n"
      "kavrix://resource/{\"mode\":0,\"cameras\":[{}]}.cameraBubble\n"
      "kavrix://resource/{\"mode\":0,\"cameras\":[{},{}]}.cameraBubble\n";
  std::vector<std::string> seen;
  for (const auto& line :
       RunTool({"compare", "--summary", "--config", Path("old.json"), "--config", Path("new.json")}, names)
           .JsonLines()) {
    EXPECT_EQ(line.at("names"), 3) << line;
    seen.push_back(line.at("member"));
  }
  EXPECT_EQ(seen.front(), "style_name");
}

TEST_F(CompareCommandTest, BytesThatAreNotUtf8AreNotAlike) {
  const ToolResult result = RunTool(
      {"compare", "kavrix://resource/A\xff_0_0@2.nameBubble", "kavrix://resource/A\xfe_0_0@2.nameBubble"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.JsonLines()[0].at("differs").size(), 1U);
}

TEST_F(CompareCommandTest, ExceptionIsComparedToo) {
  const auto differs =
      RunTool({"compare", "x.nameBubble", "kavrix://resource/.nameBubble"}).JsonLines()[0].at("differs");
  EXPECT_EQ(differs.back().at("member"), "exception");
  EXPECT_EQ(differs.back().at("new"), nullptr);
}

TEST_F(CompareCommandTest, TextCannotControlTheTerminal) {
  const ToolResult result =
      RunTool({"compare", "--format", "text", kOld, "kavrix://resource/\xC2\x85_0_0@2.nameBubble"});
  EXPECT_THAT(result.output, HasSubstr("  content: \"A\" -> \"\\u0085\"\n"));
}

TEST_F(CompareCommandTest, NameThatIsAFileGetsAHint) {
  EXPECT_THAT(RunTool({"compare", Path("old.json"), Path("new.json")}).errors, HasSubstr("is a file"));
}

TEST_F(CompareCommandTest, OutputsOfDecodeAreComparedLineByLineWithoutTheirRecords) {
  std::string names;
  for (const SampleName& sample : SampleNames()) names += sample.name + "\n";
  names += "x.turnBubble\n";
  const std::vector<std::string> decode = {"decode", "--format", "json", "--config"};
  auto with_old = decode;
  with_old.push_back(Path("old.json"));
  auto with_new = decode;
  with_new.push_back(Path("new.json"));
  auto with_context = with_old;
  with_context.insert(with_context.end(), {"--context-name", "other"});
  Write("old.jsonl", RunTool(with_old, names).output);
  Write("new.jsonl", RunTool(with_new, names).output);
  Write("context.jsonl", RunTool(with_context, names).output);
  EXPECT_EQ(RunTool({"compare", "--decoded", Path("old.jsonl"), Path("context.jsonl")}).status, 0);
  const ToolResult result = RunTool({"compare", "--decoded", Path("old.jsonl"), Path("new.jsonl")});
  EXPECT_EQ(result.status, 1);
  // The same lines as from the two configurations.
  EXPECT_EQ(result.output,
            RunTool({"compare", "--config", Path("old.json"), "--config", Path("new.json")}, names).output);
  EXPECT_EQ(
      RunTool({"compare", "--decoded", "--summary", Path("old.jsonl"), Path("new.jsonl")}).output,
      RunTool({"compare", "--summary", "--config", Path("old.json"), "--config", Path("new.json")}, names)
          .output);
}

TEST_F(CompareCommandTest, OutputsOfOtherNamesAreTrouble) {
  Write("a.jsonl", RunTool({"decode", "--format", "json", kOld, kNew}).output);
  Write("b.jsonl", RunTool({"decode", "--format", "json", kOld, kOld}).output);
  Write("c.jsonl", RunTool({"decode", "--format", "json", kOld}).output);
  Write("d.jsonl", "{\"resource_name\":\"x\"}\n");
  Write(
      "e.jsonl",
      R"({"resource_name":"kavrix://resource/A_0_0@2.nameBubble","kind":5,"exception":null,"descriptor":null})"
      "\n");
  Write(
      "f.jsonl",
      R"({"resource_name":"kavrix://resource/A_0_0@2.nameBubble","kind":null,"exception":null,"descriptor":{"base":5,"own":{}}})"
      "\n");
  const auto compare = [&](const std::string& other) {
    return RunTool({"compare", "--decoded", Path("a.jsonl"), Path(other)});
  };
  EXPECT_EQ(compare("b.jsonl").status, 2);
  EXPECT_THAT(compare("b.jsonl").errors, HasSubstr("b.jsonl:2: another name than at "));
  EXPECT_EQ(compare("c.jsonl").status, 2);
  EXPECT_THAT(compare("c.jsonl").errors, HasSubstr("c.jsonl:2: the file ends, the other goes on"));
  EXPECT_EQ(compare("d.jsonl").status, 2);
  EXPECT_THAT(compare("d.jsonl").errors,
              HasSubstr("d.jsonl:1: not a line of \"decode --format json\": \"kind\" is missing"));
  EXPECT_THAT(
      compare("e.jsonl").errors,
      HasSubstr("e.jsonl:1: not a line of \"decode --format json\": \"kind\" is neither string nor null"));
  EXPECT_THAT(compare("f.jsonl").errors, HasSubstr("\"base\" is no object"));
  EXPECT_EQ(compare("missing.jsonl").status, 2);
}

TEST_F(CompareCommandTest, ArgumentsThatMakeNoSenseAreUsageErrors) {
  EXPECT_EQ(RunTool({"compare", kOld}).status, 2);
  EXPECT_EQ(RunTool({"compare", kOld, kNew, kOld}).status, 2);
  EXPECT_EQ(RunTool({"compare", "--summary", kOld, kNew}).status, 2);
  EXPECT_EQ(RunTool({"compare", "--decoded", kOld}).status, 2);
  EXPECT_EQ(RunTool({"compare", "--decoded", "--config", Path("old.json"), "a", "b"}).status, 2);
  EXPECT_EQ(RunTool({"compare", "--config", "/nonexistent", "--config", Path("old.json")}).status, 2);
}

TEST_F(CompareCommandTest, TextShowsOldAndNewBesideEachOther) {
  EXPECT_EQ(RunTool({"compare", "--format", "text", kOld, kNew}).output,
            "kavrix://resource/A_0_0@2.nameBubble\nkavrix://resource/B_1_0@2.nameBubble\n"
            "  content: \"A\" -> \"B\"\n  mode_flag: true -> false\n");
}

}  // namespace
}  // namespace kavrix::test
