#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <random>
#include <set>

#include "inspect/style_origins.h"
#include "inspect/survey.h"
#include "tests/support/effort.h"
#include "tests/support/generated_log.h"
#include "tests/support/mixed_names.h"
#include "tests/support/tool.h"

namespace kavrix::test {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

const std::string kPrefix = "kavrix://resource/";

std::string Lines(const std::vector<std::string>& names, char end = '\n') {
  std::string text;
  for (const std::string& name : names) text += name + end;
  return text;
}

std::string Survey(const std::string& input, std::vector<std::string> options = {}) {
  options.insert(options.begin(), "survey");
  const ToolResult result = RunTool(options, input);
  EXPECT_EQ(result.errors, "");
  EXPECT_EQ(result.status, 0);
  return result.output;
}

// Golden names and others that were changed, some of them not UTF-8.
std::vector<std::string> SomeNames(unsigned seed, std::size_t count) {
  std::vector<std::string> names = AllGoldenNames();
  MixedNames mixed(seed);
  while (names.size() < count) names.push_back(mixed.Next());
  for (std::string& name : names) name.erase(std::remove(name.begin(), name.end(), '\0'), name.end());
  return names;
}

TEST(SurveyCommandTest, CountsKindsFailuresProblemsAndStyleRecords) {
  const std::string report = Survey(Lines({
      kPrefix + R"({"mode":0}.trafficBubble)",
      kPrefix + R"({"mode":0,"x":1,"y":2}.trafficBubble)",
      kPrefix + R"({"mode":0,"z":1}.trafficBubble)",
      kPrefix + R"({"mode"}.trafficBubble)",
      kPrefix + "a_0_x_0@3.etaBubble",
      "nothing",
      "",
  }));
  EXPECT_EQ(
      report,
      R"({"report":1,"names":7,"kinds":{)"
      R"("trafficBubble":{"names":4,"failed":1,"problems":{"not-json":1,"unknown-key":2},)"
      R"("styles":{"traffic_style":3},"examples":{"not-json":"kavrix://resource/{\"mode\"}.trafficBubble",)"
      R"("unknown-key":"kavrix://resource/{\"mode\":0,\"z\":1}.trafficBubble"}},)"
      R"("etaBubble":{"names":1,"failed":0,"problems":{},"styles":{"eta_style":1},"examples":{}},)"
      R"("none":{"names":2,"failed":2,"problems":{"no-marker":2},"styles":{},"examples":{"no-marker":""}}}})"
      "\n");
}

TEST(SurveyCommandTest, MarkerNamesAreAKindOfTheirOwn) {
  EXPECT_EQ(
      Survey(kPrefix + R"({"mode":0}.marker)", {"--marker"}),
      R"({"report":1,"names":1,"kinds":{"marker":{"names":1,"failed":0,"problems":{},"styles":{},"examples":{}}}})"
      "\n");
}

TEST(SurveyCommandTest, EmptyInputGivesAnEmptyReport) {
  EXPECT_EQ(Survey(""), "{\"report\":1,\"names\":0,\"kinds\":{}}\n");
  EXPECT_EQ(Survey("", {"--merge"}), "{\"report\":1,\"names\":0,\"kinds\":{}}\n");
}

TEST(SurveyCommandTest, NamesCanEndInNul) {
  EXPECT_EQ(Survey(Lines({kPrefix + "{\"mode\":\n0}.trafficBubble", "c"}, '\0'), {"--null", "--no-examples"}),
            Survey(Lines({kPrefix + "{\"mode\": 0}.trafficBubble", "c"}), {"--no-examples"}));
}

TEST(SurveyCommandTest, ExampleIsTheLeastByLengthThenBytesOfWhatIsPrinted) {
  // The replaced byte makes the first name longer, as printed, than the second.
  const auto report = nlohmann::json::parse(Survey(Lines({"a\xFF", "bcd", "bcc", "bcde", "b\xFF"})));
  EXPECT_EQ(report["kinds"]["none"]["examples"]["no-marker"], "bcc");
  EXPECT_EQ(report["kinds"]["none"]["examples"]["not-utf8"], "a\xEF\xBF\xBD");
}

TEST(SurveyCommandTest, CountsAgreeWithDecodeAndCheck) {
  const unsigned seed = Seed();
  SCOPED_TRACE(HowToRepeat(seed));
  std::vector<std::string> names = SomeNames(seed, 1500);
  const std::string input = Lines(names, '\0');
  const auto report = nlohmann::json::parse(Survey(input, {"--null"}));
  std::map<std::string, std::uint64_t> counted;
  std::map<std::string, std::uint64_t> failed;
  std::map<std::string, std::map<std::string, std::uint64_t>> problems;
  const auto checks = RunTool({"check", "--format", "json", "--null"}, input).JsonLines();
  auto check = checks.begin();
  std::size_t number = 0;
  for (const std::string& name : names) {
    ++number;
    const auto kind = FindBubbleKind(name);
    const std::string kind_name = kind ? std::string(MarkerOf(*kind).substr(1)) : "none";
    ++counted[kind_name];
    if (check == checks.end() || check->at("number") != number) continue;
    std::set<std::string> codes;
    for (const auto& problem : check->at("problems")) codes.insert(problem.at("code"));
    for (const std::string& code : codes) ++problems[kind_name][code];
    ++check;
  }
  for (const auto& line : RunTool({"decode", "--null"}, input).JsonLines()) {
    // As the exit status of decode counts it.
    bool fails = line.at("kind").is_null() || !line.at("exception").is_null();
    for (const auto& record : line.at("records")) {
      const std::string message = record.at("message");
      fails |= record.at("level") == 1 && message.compare(message.find(']', 9) + 1, 6, "parse ") == 0;
    }
    failed[line.at("kind").is_null() ? "none" : line.at("kind").get<std::string>()] += fails ? 1 : 0;
  }
  EXPECT_EQ(report["names"], names.size());
  EXPECT_EQ(report["kinds"].size(), counted.size());
  for (const auto& [kind, count] : counted) {
    EXPECT_EQ(report["kinds"][kind]["names"], count) << kind;
    EXPECT_EQ(report["kinds"][kind]["failed"], failed[kind]) << kind;
    EXPECT_EQ(
        report["kinds"][kind]["problems"],
        nlohmann::json(problems[kind].empty() ? nlohmann::json::object() : nlohmann::json(problems[kind])))
        << kind;
  }
}

TEST(SurveyCommandTest, StyleRecordsAreThoseThatExplainNames) {
  for (const std::string& name : AllGoldenNames()) {
    for (const EntryPoint entry_point : {EntryPoint::kBubble, EntryPoint::kMarker}) {
      std::set<std::string> records;
      for (const auto& [member, cell] : inspect::FindStyleOrigins(name, entry_point)) {
        if (!cell.record.empty()) records.insert(cell.record);
      }
      EXPECT_EQ(inspect::FindStyleRecords(name, entry_point), records) << name;
    }
  }
}

TEST(SurveyCommandTest, LogsAreSurveyedByTheNamesInThem) {
  const GeneratedLog log = GenerateLog(Seed(), 2000);
  std::vector<std::string> names;
  for (const GeneratedLog::Name& name : log.names) names.push_back(name.name);
  EXPECT_EQ(Survey(log.text, {"--extract"}), Survey(Lines(names)));
  EXPECT_EQ(Survey(log.text, {"--extract", "--jobs", "4"}), Survey(Lines(names)));
}

TEST(SurveyCommandTest, ReportsMergeInAnyOrderAndGroupingToOneOfAll) {
  const unsigned seed = Seed();
  SCOPED_TRACE(HowToRepeat(seed));
  std::mt19937 random(seed);
  std::vector<std::string> names = SomeNames(seed, 3000);
  const std::string whole = Survey(Lines(names, '\0'), {"--null", "--jobs", "2"});
  std::shuffle(names.begin(), names.end(), random);
  std::vector<std::string> reports;
  for (std::size_t begin = 0; begin < names.size();) {
    const std::size_t count = std::min<std::size_t>(random() % 900, names.size() - begin);
    const auto first = names.begin() + static_cast<std::ptrdiff_t>(begin);
    reports.push_back(Survey(Lines({first, first + static_cast<std::ptrdiff_t>(count)}, '\0'), {"--null"}));
    begin += count;
  }
  while (reports.size() > 1) {  // merges some of them, in any order, until one is left
    std::shuffle(reports.begin(), reports.end(), random);
    const std::size_t count = 1 + random() % reports.size();
    std::string some;
    for (std::size_t i = 0; i < count; ++i) some += reports[i];
    reports.erase(reports.begin(), reports.begin() + static_cast<std::ptrdiff_t>(count));
    reports.push_back(Survey(some, {"--merge"}));
  }
  EXPECT_EQ(reports.at(0), whole);
}

TEST(SurveyCommandTest, ExamplesAreLeftOutOnDemand) {
  const std::string names = Lines({kPrefix + "secret", kPrefix + R"({"secret":1}.trafficBubble)"});
  const std::string without = Survey(names, {"--no-examples"});
  EXPECT_EQ(without.find("secret"), std::string::npos);
  EXPECT_THAT(without, HasSubstr(R"("problems":{"no-marker":1})"));
  EXPECT_EQ(Survey(Survey(names), {"--merge", "--no-examples"}), without);
  EXPECT_EQ(Survey(without + Survey(""), {"--merge"}), without);
}

TEST(SurveyCommandTest, ReportThatCannotBeReadIsToldOfByPlaceAndTheRestGoesOn) {
  const std::string good = Survey("nothing\n");
  const std::string empty_kind = R"({"names":1,"failed":0,"problems":{},"styles":{},"examples":{}})";
  const std::vector<std::pair<std::string, std::string>> bad = {
      {"hello", "Line 1, Column 1: expected an object or an array, found 'h'"},
      {R"({"report":2,"names":0,"kinds":{}})",
       "report: expected version 1, which is all that this tool reads"},
      {R"({"resource_name":"x"})", "not the report of a survey: expected a key \"report\""},
      {"[]", "expected an object"},
      {R"({"report":1,"kinds":{}})", "expected a key \"names\""},
      {R"({"report":1,"names":0,"kinds":{},"more":1})", "unknown key \"more\""},
      {R"({"report":1,"names":-1,"kinds":{}})", "names: expected a count from 0 to 9007199254740992"},
      {R"({"report":1,"names":1.5,"kinds":{}})", "names: expected a count from 0 to 9007199254740992"},
      {R"({"report":1,"names":2,"kinds":{"none":)" + empty_kind + "}}",
       "names: expected the sum of the kinds, 1"},
      {R"({"report":1,"names":1,"kinds":{"someBubble":)" + empty_kind + "}}",
       "kinds: no kind is called \"someBubble\""},
      {R"({"report":1,"names":1,"kinds":{"none":{"names":1,"failed":2,"problems":{},"styles":{},"examples":{}}}})",
       "kinds.none.failed: expected a count from 0 to 1"},
      {R"({"report":1,"names":0,"kinds":{"none":{"names":0,"failed":0,"problems":{},"styles":{},"examples":{}}}})",
       "kinds.none.names: expected a count from 1 to 9007199254740992"},
      {R"({"report":1,"names":1,"kinds":{"none":{"names":1,"failed":0,"problems":{"a":0},"styles":{},"examples":{}}}})",
       "kinds.none.problems.a: expected a count from 1 to 1"},
      {R"({"report":1,"names":9007199254740992,"kinds":{"none":{"names":9007199254740992,"failed":0,"problems":{},"styles":{},"examples":{}}}})",
       "more than 9007199254740992 names in all"},
      {R"({"report":1,"names":1,"kinds":{"none":{"names":1,"failed":0,"problems":{},"styles":{},"examples":{"a":"b"}}}})",
       "kinds.none.examples: no problem is called \"a\""},
      {good.substr(0, good.size() / 2), "Line 1, Column "},
  };
  for (const auto& [line, message] : bad) {
    const ToolResult result = RunTool({"survey", "--merge"}, good + "\n" + line + "\n" + good);
    EXPECT_EQ(result.output, Survey(good + good, {"--merge"})) << line;
    EXPECT_THAT(result.errors, StartsWith("kavrix-resource: -:3: " + message)) << line;
    EXPECT_THAT(result.errors, HasSubstr("; this report is left out\n"));
    EXPECT_EQ(result.status, 2);
  }
}

TEST(SurveyCommandTest, CompressedFileIsToldOf) {
  const ToolResult result = RunTool({"survey"}, "\x1F\x8B\x08\n");
  EXPECT_EQ(result.errors,
            "kavrix-resource: standard input: no text: it is compressed by gzip; read it with zcat\n");
  EXPECT_EQ(result.output, Survey(""));
  EXPECT_EQ(result.status, 2);
}

TEST(SurveyCommandTest, ReportsMergeFromSeveralFiles) {
  const ToolResult result = RunShellInFolder(
      "echo a | $TOOL survey > 1 && echo b.turnBubble | $TOOL survey > 2 && $TOOL survey "
      "--merge 1 - 2 < 2 && "
      "printf 'a\nb.turnBubble\nb.turnBubble\n' | $TOOL survey");
  ASSERT_EQ(result.Lines().size(), 2U);
  EXPECT_EQ(result.Lines()[0], result.Lines()[1]);
}

TEST(SurveyCommandTest, FileThatCannotBeReadIsLeftOut) {
  const ToolResult result = RunTool({"survey", "-", "/no/such/file"}, "nothing\n");
  EXPECT_EQ(result.output, Survey("nothing\n"));
  EXPECT_EQ(result.errors, "kavrix-resource: cannot open /no/such/file: No such file or directory\n");
  EXPECT_EQ(result.status, 2);
}

TEST(SurveyCommandTest, TextIsATableForPeople) {
  EXPECT_EQ(Survey(Lines({kPrefix + R"({"mode":0}.trafficBubble)", "x\x1B[2J"}), {"--format", "text"}),
            "2 names, 1 failed\n"
            "\n"
            "kind                             names       failed  style records\n"
            "trafficBubble                        1            0  traffic_style 1\n"
            "none                                 1            1\n"
            "\n"
            "kind                      problem             names  least example\n"
            "none                      no-marker               1  x\\u001b[2J\n");
  EXPECT_EQ(Survey("", {"--format", "text"}), "0 names, 0 failed\n");
}

TEST(SurveyCommandTest, OptionsThatMakeNoSenseTogetherAreUsageErrors) {
  const std::vector<std::vector<std::string>> usages = {{"survey", "--merge", "--extract"},
                                                        {"survey", "--merge", "--jobs", "2"},
                                                        {"survey", "--json"},
                                                        {"survey", "--extract", "--null"}};
  for (const std::vector<std::string>& arguments : usages) {
    const ToolResult result = RunTool(arguments);
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(result.errors, HasSubstr("Run with --help"));
  }
}

}  // namespace
}  // namespace kavrix::test
