#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "inspect/explain.h"
#include "inspect/shrink.h"
#include "map_resource/bubble_markers.h"
#include "tests/support/golden.h"
#include "tests/support/tool.h"
#include "util/utf8.h"

namespace kavrix::test {
namespace {

using ::testing::HasSubstr;

const std::string kPrefix = "kavrix://resource/";

TEST(ShrinkCommandTest, PrintsTheSmallestNameThatFailsInTheSameWay) {
  const ToolResult result = RunTool(
      {"shrink", "--format", "text", kPrefix + R"({"content":"Jam","mode":0,"scene":}.trafficBubble)"});
  EXPECT_EQ(result.output, kPrefix + ".trafficBubble\n");
  EXPECT_EQ(result.errors, "");
  EXPECT_EQ(result.status, 1);
}

TEST(ShrinkCommandTest, KeepsTheKindAndTheFirstError) {
  const std::vector<std::pair<std::string, std::string>> names = {
      {kPrefix + "no marker at all", ""},                                                 // no-marker
      {kPrefix + R"({"mode":0}.traficBubble and a long text after it)", ".traficBubbl"},  // near-marker
      {"x.turnBubble", ".turnBubble"},                                                    // too-short
      {kPrefix + R"({"mode":0,"type":3}@1@2@3.SafeWarningBubble)", kPrefix + ".SafeWarningBubble"},
  };
  for (const auto& [name, shrunk] : names) {
    EXPECT_EQ(RunTool({"shrink", "--format", "text", name}).output, shrunk + "\n") << name;
  }
}

// The code of the first error, and those of all problems.
struct Codes {
  std::string error;
  std::set<std::string> all;
};

Codes CodesOf(const std::string& name) {
  Codes codes;
  for (const inspect::Problem& problem : inspect::CheckBubbleName(name)) {
    if (codes.error.empty() && problem.severity == inspect::Severity::kError) codes.error = problem.code;
    codes.all.insert(problem.code);
  }
  return codes;
}

TEST(ShrinkCommandTest, NothingCanBeLeftOutOfAShrunkName) {
  for (const std::string& name : BubbleGoldenNames()) {
    const Codes codes = CodesOf(name);
    const auto shrunk = inspect::Shrink(name, EntryPoint::kBubble);
    ASSERT_EQ(shrunk.has_value(), !codes.error.empty()) << name;
    if (!shrunk) continue;
    const auto fails_alike = [&](const std::string& text) {
      const Codes others = CodesOf(text);
      return FindBubbleKind(text) == FindBubbleKind(name) && others.error == codes.error &&
             std::includes(codes.all.begin(), codes.all.end(), others.all.begin(), others.all.end());
    };
    EXPECT_TRUE(fails_alike(*shrunk)) << name;
    EXPECT_LE(shrunk->size(), name.size());
    for (std::size_t at = 0; at < shrunk->size();) {
      const std::size_t length = NextUtf8(std::string_view(*shrunk).substr(at)).length;
      EXPECT_FALSE(fails_alike(std::string(*shrunk).erase(at, length))) << name << "\n" << *shrunk;
      at += length;
    }
  }
}

TEST(ShrinkCommandTest, NameThatDecodesIsNotShrunk) {
  const ToolResult result = RunTool({"shrink", "--format", "text", kPrefix + R"({"mode":0}.trafficBubble)"});
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(result.errors, "kavrix-resource: name 1: it does not fail: there is nothing to shrink\n");
  EXPECT_EQ(result.status, 0);
}

TEST(ShrinkCommandTest, MarkerNamesShrinkWithTheirOption) {
  EXPECT_EQ(RunTool({"shrink", "--format", "text", "--marker", kPrefix + R"({"name":"a",}.marker)"}).output,
            kPrefix + ".mker\n");
}

TEST(ShrinkCommandTest, JsonIsALineForTheGoldenFiles) {
  const std::string name = kPrefix + R"({"content":"Jam)" + ".trafficBubble";
  const auto lines = RunTool({"shrink", name}).JsonLines();
  ASSERT_EQ(lines.size(), 1U);
  const std::string shrunk = lines[0].at("resource_name");
  auto expected = RunTool({"decode", shrunk}).JsonLines().at(0);
  expected["codes"] = {"not-json"};
  EXPECT_EQ(lines[0], expected);
}

TEST(ShrinkCommandTest, ReadsNamesAsOtherCommandsDo) {
  EXPECT_EQ(RunTool({"shrink", "--format", "text", "--jobs", "2"}, "a.turnBubble\n\nb.turnBubble\n").output,
            ".turnBubble\n\n.turnBubble\n");
  EXPECT_THAT(RunTool({"shrink", "--help"}).output, HasSubstr("Exit status"));
}

}  // namespace
}  // namespace kavrix::test
