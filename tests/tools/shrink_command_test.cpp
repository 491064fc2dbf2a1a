#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "inspect/explain.h"
#include "inspect/shrink.h"
#include "map_resource/bubble_markers.h"
#include "tests/support/golden.h"
#include "tests/support/tool.h"

namespace kavrix::test {
namespace {

using ::testing::HasSubstr;

const std::string kPrefix = "kavrix://resource/";

TEST(ShrinkCommandTest, PrintsTheSmallestNameThatFailsInTheSameWay) {
  const ToolResult result =
      RunTool({"shrink", kPrefix + R"({"content":"Jam","mode":0,"scene":}.trafficBubble)"});
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
    EXPECT_EQ(RunTool({"shrink", name}).output, shrunk + "\n") << name;
  }
}

TEST(ShrinkCommandTest, NothingCanBeLeftOutOfAShrunkName) {
  for (const std::string& name : BubbleGoldenNames()) {
    const auto shrunk = inspect::Shrink(name, EntryPoint::kBubble);
    const auto error_of = [](const std::string& text) {
      for (const inspect::Problem& problem : inspect::CheckBubbleName(text)) {
        if (problem.severity == inspect::Severity::kError) return problem.code;
      }
      return std::string();
    };
    ASSERT_EQ(shrunk.has_value(), !error_of(name).empty()) << name;
    if (!shrunk) continue;
    EXPECT_LE(shrunk->size(), name.size());
    EXPECT_EQ(error_of(*shrunk), error_of(name)) << name;
    EXPECT_EQ(FindBubbleKind(*shrunk), FindBubbleKind(name)) << name;
    EXPECT_EQ(inspect::Shrink(*shrunk, EntryPoint::kBubble), shrunk) << name;
  }
}

TEST(ShrinkCommandTest, NameThatDecodesIsNotShrunk) {
  const ToolResult result = RunTool({"shrink", kPrefix + R"({"mode":0}.trafficBubble)"});
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(result.errors, "kavrix-resource: name 1: it does not fail: there is nothing to shrink\n");
  EXPECT_EQ(result.status, 0);
}

TEST(ShrinkCommandTest, MarkerNamesShrinkWithTheirOption) {
  EXPECT_EQ(RunTool({"shrink", "--marker", kPrefix + R"({"name":"a",}.marker)"}).output, kPrefix + ".mker\n");
}

TEST(ShrinkCommandTest, JsonIsALineForTheGoldenFiles) {
  const std::string name = kPrefix + R"({"content":"Jam)" + ".trafficBubble";
  const auto lines = RunTool({"shrink", "--format", "json", name}).JsonLines();
  ASSERT_EQ(lines.size(), 1U);
  const std::string shrunk = lines[0].at("resource_name");
  auto expected = RunTool({"decode", shrunk}).JsonLines().at(0);
  expected["codes"] = {"not-json"};
  EXPECT_EQ(lines[0], expected);
}

TEST(ShrinkCommandTest, ReadsNamesAsOtherCommandsDo) {
  EXPECT_EQ(RunTool({"shrink"}, "a.turnBubble\n\nb.turnBubble\n").output, ".turnBubble\n\n.turnBubble\n");
  EXPECT_THAT(RunTool({"shrink", "--help"}).output, HasSubstr("Exit status"));
}

}  // namespace
}  // namespace kavrix::test
