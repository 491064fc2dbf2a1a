#include "tests/support/golden.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <nlohmann/json.hpp>
#include <regex>
#include <stdexcept>
#include <string_view>

#include "tests/support/read_file.h"
#include "tests/support/tool.h"

namespace kavrix {

// googletest calls it to name the kind of a test.
static void PrintTo(const BubbleKindInfo* info, std::ostream* stream) { *stream << info->marker; }

namespace test {
namespace {

// The names are taken from the lines themselves: to add one, add a line {"resource_name": "..."} and run the
// tests with --update-goldens.
class GoldenTest : public ::testing::TestWithParam<const BubbleKindInfo*> {
 protected:
  std::string SourcePath() const {
    return std::string(KAVRIX_SOURCE_DIR "/src/map_resource/") + GetParam()->stem + ".cpp";
  }
  std::string SamplesPath() const {
    return std::string(KAVRIX_SOURCE_DIR "/samples/") + GetParam()->stem + ".txt";
  }
  std::vector<std::string> DecodeArguments() const {
    std::vector<std::string> arguments = {"decode", "--format", "json"};
    if (GetParam()->entry_point == EntryPoint::kMarker) arguments.emplace_back("--marker");
    return arguments;
  }
  ToolResult RunOverGoldenNames(std::vector<std::string> arguments) const {
    std::string names;
    for (const std::string& name : GoldenNames(*GetParam())) names += name + '\0';
    if (GetParam()->entry_point == EntryPoint::kMarker) arguments.emplace_back("--marker");
    arguments.emplace_back("--null");
    return RunTool(arguments, names);
  }
  // The text of an exception is the standard library's own: the golden files have libstdc++'s.
  static std::string WithTheExceptionsOfThisLibrary(const std::string& lines) {
#ifdef __GLIBCXX__
    return lines;
#else
    static const std::regex text("basic_string_view::substr: __pos [^\"]*");
    try {
      (void)std::string_view().substr(1);
    } catch (const std::out_of_range& exception) {
      return std::regex_replace(lines, text, exception.what());
    }
    throw std::logic_error("substr takes any place");
#endif
  }
  // The codes of the problems of each golden name, by its number.
  std::map<std::size_t, nlohmann::json> Codes() const {
    std::map<std::size_t, nlohmann::json> codes;
    for (const auto& line : RunOverGoldenNames({"check", "--format", "json"}).JsonLines()) {
      for (const auto& problem : line.at("problems")) codes[line.at("number")].push_back(problem.at("code"));
    }
    return codes;
  }
  // Returns the keys of the kind without their paths, such as "type" for "cameras[].type".
  std::vector<std::string> Keys() const {
    KeyLister lister;
    GetParam()->codec.list_keys(lister);
    std::vector<std::string> keys;
    for (const KeyInfo& info : lister.keys()) keys.push_back(info.key.substr(info.key.rfind('.') + 1));
    return keys;
  }
};

TEST_P(GoldenTest, NamesDecodeAndCheckAsRecorded) {
  const std::string path = GoldenPath(*GetParam());
  const std::string golden = ReadFile(path);
  ASSERT_FALSE(golden.empty()) << "the kind has no golden file: " << path;
  const ToolResult result = RunOverGoldenNames({"decode", "--format", "json"});
  EXPECT_EQ(result.errors, "");
  const std::map<std::size_t, nlohmann::json> codes = Codes();
  std::string printed;
  std::size_t number = 0;
  for (std::string line : result.Lines()) {
    const auto found = codes.find(++number);
    line.pop_back();  // the brace that closes the object
    printed += line + ",\"codes\":" + (found == codes.end() ? "[]" : found->second.dump()) + "}\n";
  }
  if (update_goldens) {
    std::ofstream(path, std::ios::binary) << printed;
    return;
  }
  EXPECT_EQ(FirstDifference(WithTheExceptionsOfThisLibrary(golden), printed), "") << kHowToUpdate;
}

TEST_P(GoldenTest, EveryKeyIsInANameAndInTheHeadCommentOfTheSource) {
  const std::string fields = RunOverGoldenNames({"decode", "--fields"}).output;
  const std::string source = ReadFile(SourcePath());
  const std::string head = source.substr(0, source.find("#include"));
  for (const std::string& key : Keys()) {
    EXPECT_NE(fields.find("\"" + key + "\":"), std::string::npos) << key << ": no golden name carries it";
    EXPECT_TRUE(std::regex_search(head, std::regex("\\b" + key + "\\b")))
        << key << ": not in the head comment of " << SourcePath();
  }
}

TEST_P(GoldenTest, SamplesAreOfTheKindAndDecodeWithoutFailure) {
  const ToolResult result = RunTool(DecodeArguments(), ReadFile(SamplesPath()));
  EXPECT_EQ(result.status, 0);
  const auto lines = result.JsonLines();
  EXPECT_GE(lines.size(), 3U);
  const bool is_bubble = GetParam()->entry_point == EntryPoint::kBubble;
  for (const auto& line : lines) {
    EXPECT_EQ(line.at("kind").is_null() ? "" : line.at("kind").get<std::string>(),
              is_bubble ? GetParam()->Name() : "");
  }
}

TEST_P(GoldenTest, KindHasItsFilesUnderItsStem) {
  const std::string stem = GetParam()->stem;
  for (const std::string& path :
       {"src/map_resource/" + stem + ".cpp", "tests/map_resource/" + stem + "_test.cpp",
        "tests/reference/" + stem + ".cpp", "samples/" + stem + ".txt", "tests/golden/" + stem + ".jsonl"}) {
    EXPECT_TRUE(std::filesystem::exists(KAVRIX_SOURCE_DIR "/" + path)) << path << " is missing";
  }
}

INSTANTIATE_TEST_SUITE_P(Kinds, GoldenTest, ::testing::ValuesIn(AllKindInfos()),
                         [](const auto& test) { return test.param->stem; });

}  // namespace
}  // namespace test
}  // namespace kavrix
