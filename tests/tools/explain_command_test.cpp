#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/golden.h"
#include "tests/support/sample_names.h"
#include "tests/support/tool.h"

namespace kavrix::test {
namespace {

using nlohmann::json;
using ::testing::HasSubstr;

json Explain(const std::vector<std::string>& arguments) {
  std::vector<std::string> all = {"explain"};
  all.insert(all.end(), arguments.begin(), arguments.end());
  const auto lines = RunTool(all).JsonLines();
  return lines.size() == 1 ? lines[0] : json();
}

json Member(const json& explanation, const std::string& path) {
  for (const json& member : explanation.at("members")) {
    if (member.at("member") == path) return member;
  }
  return nullptr;
}

TEST(ExplainCommandTest, TellsWhereEveryMemberCameFrom) {
  const json explanation = Explain(
      {R"(kavrix://resource/{"content":"Go","mode":0,"scene":1,"x":[1],"nav_mode":1}.trafficBubble)"});
  EXPECT_EQ(explanation.at("kind"), "trafficBubble");
  EXPECT_EQ(explanation.at("plain"), true);
  EXPECT_EQ(explanation.at("members").size(), 20U);
  EXPECT_EQ(
      Member(explanation, "content"),
      json::parse(
          R"({"member": "content", "value": "Go", "from": "name", "key": "content", "bytes": [30, 32]})"));
  EXPECT_EQ(
      Member(explanation, "mode_flag"),
      json::parse(R"({"member": "mode_flag", "value": true, "from": "name", "key": "mode", "bytes": [41, 42],
                            "rule": "true when 0"})"));
  EXPECT_EQ(
      Member(explanation, "style_float_1"),
      json::parse(R"({"member": "style_float_1", "value": 14, "from": "config", "record": "traffic_nav_style",
                            "number": 4, "chosen_by": ["scene", "nav_mode", "mode"]})"));
  EXPECT_EQ(Member(explanation, "style_name"),
            json::parse(R"({"member": "style_name", "value": "traffic_nav", "from": "config",
                            "record": "traffic_nav_style", "number": 0, "chosen_by": ["scene", "nav_mode"]})"));
  EXPECT_EQ(Member(explanation, "bubble_kind"),
            json::parse(R"({"member": "bubble_kind", "value": 1, "from": "kind"})"));
  EXPECT_EQ(Member(explanation, "lan"), json::parse(R"({"member": "lan", "value": "", "from": "default"})"));
  EXPECT_EQ(explanation.at("steers"), json::parse(R"([{"key": "nav_mode", "bytes": [72, 73]}])"));
  EXPECT_EQ(explanation.at("structure"),
            json::parse("[[0, 18], [18, 30], [32, 41], [42, 51], [52, 53], [60, 72], [73, 74], [74, 88]]"));
  EXPECT_EQ(explanation.at("ignored"),
            json::parse(R"([{"bytes": [53, 60], "reason": "a key that the kind does not have"}])"));
  EXPECT_EQ(explanation.at("problems"), json::parse(R"([
    {"code": "unknown-key", "severity": "warning", "bytes": [54, 55],
     "message": "\"x\" is not a key of trafficBubble", "suggestion": null}])"));
}

TEST(ExplainCommandTest, ListHasItsLengthAndItsArrayBeforeItsItems) {
  const json explanation = Explain({R"(kavrix://resource/{"mode":1,"cameras":[{"type":3},7]}.cameraBubble)"});
  EXPECT_EQ(Member(explanation, "cameras"),
            json::parse(
                R"({"member": "cameras", "value": 2, "from": "name", "key": "cameras", "bytes": [38, 52]})"));
  EXPECT_EQ(Member(explanation, "cameras[0].type"),
            json::parse(R"({"member": "cameras[0].type", "value": 3, "from": "name", "key": "cameras[].type",
                            "bytes": [47, 48]})"));
  EXPECT_EQ(Member(explanation, "cameras[1].type"),
            json::parse(R"({"member": "cameras[1].type", "value": 0, "from": "default"})"));
  EXPECT_EQ(Member(explanation, "plain_style_values"), nullptr);
  EXPECT_EQ(Member(explanation, "plain_style_values[2]").at("number"), 16);
}

TEST(ExplainCommandTest, StringsOfAListHaveTheListsKey) {
  const json explanation =
      Explain({R"(kavrix://resource/{"mode":1,"second_content":["a",1,"bc"]}.routeExplainBubble)"});
  EXPECT_EQ(Member(explanation, "second_content").at("value"), 2);
  EXPECT_EQ(
      Member(explanation, "second_content[1]"),
      json::parse(R"({"member": "second_content[1]", "value": "bc", "from": "name", "key": "second_content",
                            "bytes": [53, 55]})"));
}

TEST(ExplainCommandTest, MemberThatHidesOneOfTheBaseIsItsOwn) {
  const json explanation =
      Explain({R"(kavrix://resource/{"mode":1,"scene":4,"scene_":2}@1.companionBubble)"});
  EXPECT_EQ(Member(explanation, "scene").at("key"), "scene_");
  EXPECT_EQ(Member(explanation, "own.scene").at("key"), "scene");
  EXPECT_EQ(Member(explanation, "own.scene").at("value"), 4);
}

TEST(ExplainCommandTest, AbsentOrMistypedModeIsInverted) {
  const json inverted = json::parse(
      R"({"member": "mode_flag", "value": true, "from": "default", "rule": "inverted: no mode"})");
  EXPECT_EQ(Member(Explain({"kavrix://resource/{}.trafficBubble"}), "mode_flag"), inverted);
  EXPECT_EQ(Member(Explain({R"(kavrix://resource/{"mode":"1"}.trafficBubble)"}), "mode_flag"), inverted);
  const json plain = json::parse(R"({"member": "mode_flag", "value": false, "from": "default"})");
  EXPECT_EQ(Member(Explain({"kavrix://resource/{.trafficBubble"}), "mode_flag"), plain);
  EXPECT_EQ(Member(Explain({"kavrix://resource/A@1.nameBubble"}), "mode_flag"), plain);
}

TEST(ExplainCommandTest, ContextGivesTheTypeOfMultiLightBubbles) {
  EXPECT_EQ(Member(Explain({"kavrix://resource/{\"mode\":1}@1.multiLightCountdownBubble"}), "type"),
            json::parse(R"({"member": "type", "value": 0, "from": "context", "key": "multi_light_type"})"));
}

TEST(ExplainCommandTest, MarkerBubbleHasItsOwnStyleRecordAndTheCodeZeroOfItsKind) {
  const json explanation = Explain({"kavrix://resource/{\"mode\":1}.markerBubble"});
  EXPECT_EQ(Member(explanation, "style_word").at("record"), "marker_bubble");
  EXPECT_EQ(Member(explanation, "bubble_kind").at("from"), "kind");
  EXPECT_EQ(Member(Explain({"kavrix://resource/A_0_1@2.nameBubble"}), "bubble_kind").at("from"), "kind");
  EXPECT_EQ(Member(Explain({"kavrix://resource/{\"mode\":1}@1.companionBubble"}), "bubble_kind").at("from"),
            "default");
}

TEST(ExplainCommandTest, ForcedMembersComeFromTheKind) {
  const json explanation = Explain({"kavrix://resource/{\"mode\":1}.ForceDotBubble"});
  EXPECT_EQ(Member(explanation, "content"),
            json::parse(R"({"member": "content", "value": "ForceDot", "from": "kind"})"));
  EXPECT_EQ(Member(explanation, "is_force").at("from"), "kind");
  EXPECT_EQ(Member(Explain({"kavrix://resource/{.ForceDotBubble"}), "content").at("from"), "default");
}

TEST(ExplainCommandTest, MarkerNamesContentIsComputed) {
  const json explanation =
      Explain({"--marker", R"(kavrix://resource/{"mode":1,"marker_type":0,"name":"Ann"}.marker)"});
  EXPECT_EQ(explanation.at("kind"), nullptr);
  EXPECT_EQ(Member(explanation, "content"),
            json::parse(R"({"member": "content", "value": "kavrix://resource/poi_Ann", "from": "computed",
                            "of": ["marker_type", "name"]})"));
  EXPECT_EQ(Member(explanation, "marker_type").at("value"), 0);
  EXPECT_EQ(Member(explanation, "bubble_kind").at("value"), 21);
}

TEST(ExplainCommandTest, LastWrittenOfTwoSourcesIsNamedAndTheOtherIsIgnored) {
  const json two = Explain({R"(kavrix://resource/{"mode":1,"direction":7}@12.SafeWarningBubble)"});
  EXPECT_EQ(
      Member(two, "direction"),
      json::parse(
          R"({"member": "direction", "value": 12, "from": "name", "key": "direction", "bytes": [43, 45]})"));
  EXPECT_EQ(two.at("ignored"),
            json::parse(R"([{"bytes": [28, 41], "reason": "what is read later counts"}])"));
  const json one = Explain({R"(kavrix://resource/{"mode":1,"direction":7}@x.SafeWarningBubble)"});
  EXPECT_EQ(Member(one, "direction").at("bytes"), json::parse("[40, 41]"));
}

TEST(ExplainCommandTest, FieldsHaveTheirNamesAndSeparatorsAreStructure) {
  const json explanation = Explain({"kavrix://resource/Home|9 min_0_x_2@3.etaBubble"});
  EXPECT_EQ(Member(explanation, "content").at("bytes"), json::parse("[18, 22]"));
  EXPECT_EQ(Member(explanation, "sub_text"),
            json::parse(R"({"member": "sub_text", "value": "9 min", "from": "name", "key": "sub_text",
                            "bytes": [23, 28]})"));
  EXPECT_EQ(Member(explanation, "direction").at("bytes"), json::parse("[35, 36]"));
  EXPECT_EQ(explanation.at("structure"),
            json::parse("[[0, 18], [22, 23], [28, 29], [30, 31], [32, 33], [34, 35], [36, 46]]"));
  EXPECT_EQ(explanation.at("ignored"), json::parse(R"([{"bytes": [31, 32], "reason": "nothing reads it"}])"));
}

TEST(ExplainCommandTest, ThirdFieldOfALongSolidNameCountsOnlyByBeingThere) {
  const json explanation = Explain({"kavrix://resource/A_0_x@1.hdLongSolidBubble"});
  EXPECT_EQ(
      Member(explanation, "is_force"),
      json::parse(R"({"member": "is_force", "value": true, "from": "name", "key": "force", "bytes": [22, 22],
                            "rule": "true when there"})"));
  EXPECT_EQ(explanation.at("ignored"),
            json::parse(R"([{"bytes": [22, 23], "reason": "only that the field is there counts"}])"));
}

TEST(ExplainCommandTest, IntegerThatLosesBitsSaysSo) {
  EXPECT_EQ(Member(Explain({R"(kavrix://resource/{"mode":1,"direction":65537}.trafficBubble)"}), "direction"),
            json::parse(R"({"member": "direction", "value": 1, "from": "name", "key": "direction",
                            "bytes": [40, 45], "rule": "low 16 bits"})"));
}

TEST(ExplainCommandTest, PayloadThatIsNotPlainKeepsThePlacesOfValues) {
  const json explanation =
      Explain({R"(kavrix://resource/{/*a*/"content":"a\"b","mode":0,"q":-.5} .trafficBubble)"});
  EXPECT_EQ(explanation.at("plain"), false);
  EXPECT_EQ(Member(explanation, "content").at("value"), "a\"b");
  EXPECT_EQ(Member(explanation, "content").at("bytes"), json::parse("[35, 39]"));
  EXPECT_EQ(Member(explanation, "mode_flag").at("bytes"), json::parse("[48, 49]"));
  EXPECT_EQ(explanation.at("problems")[0].at("code"), "unknown-key");
  EXPECT_EQ(explanation.at("problems")[0].at("bytes"), nullptr);
}

TEST(ExplainCommandTest, NameThatLeavesOutUntouchedHasNoMembers) {
  for (const std::string name : {"hello", "kavrix://resource/{}.SafeWarningBubble", ""}) {
    const json explanation = Explain({name});
    EXPECT_EQ(explanation.at("members"), json::array()) << name;
  }
  EXPECT_EQ(Explain({"hello"}).at("kind"), nullptr);
}

TEST(ExplainCommandTest, NameInWhichTheDescriptorFindsNoBracesHasItsMarkerAfterThePayload) {
  const json explanation = Explain({"kavrix://resource/abc.YawNoticeBubble tail"});
  EXPECT_EQ(explanation.at("structure"), json::parse("[[0, 18], [21, 37]]"));
  EXPECT_EQ(explanation.at("ignored"),
            json::parse(R"([{"bytes": [18, 21], "reason": "the payload is no JSON object"},
                            {"bytes": [37, 42], "reason": "it follows the marker"}])"));
}

TEST(ExplainCommandTest, NameThatCannotBeExplainedUnderAPrefixWithAMarkerStopsNoOther) {
  const ToolResult result =
      RunTool({"explain", "--prefix", "a.nameBubble/"},
              "{\"mode\":1} 2345678901.YawNoticeBubble\na.nameBubble/B_0_0@1.nameBubble\n");
  EXPECT_EQ(result.status, 1);
  ASSERT_EQ(result.JsonLines().size(), 1U);
  EXPECT_EQ(Member(result.JsonLines()[0], "content").at("value"), "B");
  EXPECT_THAT(result.errors, HasSubstr("name 1: cannot be explained: YawNoticeBubble: prefix: "));
}

TEST(ExplainCommandTest, NameShorterThanThePrefixKeepsWhatWasSetBefore) {
  const json route = Explain({"x.nameBubble"});
  EXPECT_EQ(Member(route, "bubble_kind").at("from"), "kind");
  const json turn = Explain({"x.turnBubble"});
  EXPECT_EQ(Member(turn, "bubble_kind"),
            json::parse(R"({"member": "bubble_kind", "value": 0, "from": "default"})"));
  EXPECT_EQ(turn.at("problems")[0].at("code"), "too-short");
  EXPECT_EQ(turn.at("structure"), json::parse("[[1, 12]]"));
  const json solid = Explain({"x.hdLongSolidBubble"});
  EXPECT_EQ(Member(solid, "style_word").at("record"), "hd_long_solid_style");
}

// For every golden name, with the status of decode for it.
TEST(ExplainCommandTest, StatusIsThatOfDecodeAndAnErrorIsWhatMakesItFail) {
  for (const BubbleKindInfo* const info : AllKindInfos()) {
    const bool is_marker = info->entry_point == EntryPoint::kMarker;
    std::string names;
    for (const std::string& name : GoldenNames(*info)) names += name + '\0';
    const auto run = [&](std::vector<std::string> arguments) {
      if (is_marker) arguments.emplace_back("--marker");
      arguments.emplace_back("--null");
      return RunTool(arguments, names);
    };
    const ToolResult explained = run({"explain"});
    const auto explanations = explained.JsonLines();
    const auto decoded = run({"decode"}).JsonLines();
    ASSERT_EQ(explanations.size(), decoded.size());
    bool any_failed = false;
    for (std::size_t i = 0; i < decoded.size(); ++i) {
      bool failed = !decoded[i].at("exception").is_null() || (decoded[i].at("kind").is_null() && !is_marker);
      for (const json& record : decoded[i].at("records")) {
        const std::string message = record.at("message");
        const std::string head = "[Kavrix][main-map]parse ";
        failed |= record.at("level") == 1 && message.compare(0, head.size(), head) == 0;
      }
      bool has_error = false;
      for (const json& problem : explanations[i].at("problems"))
        has_error |= problem.at("severity") == "error";
      EXPECT_EQ(has_error, failed) << decoded[i].at("resource_name");
      any_failed |= failed;
    }
    EXPECT_EQ(explained.status, any_failed ? 1 : 0) << info->stem;
  }
}

TEST(ExplainCommandTest, TakesPrefixConfigurationAndThreadsAsDecodeDoes) {
  const std::string config = KAVRIX_SOURCE_DIR "/samples/default_config.json";
  std::string names;
  for (int i = 0; i < 300; ++i) names += "app://N" + std::to_string(i) + "_0_0@1.nameBubble\n";
  const auto lines =
      RunTool({"explain", "--prefix", "app://", "--config", config, "--jobs", "3"}, names).JsonLines();
  ASSERT_EQ(lines.size(), 300U);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    EXPECT_EQ(Member(lines[i], "content").at("value"), "N" + std::to_string(i));
    EXPECT_EQ(Member(lines[i], "content").at("bytes")[0], 6);
  }
  EXPECT_EQ(RunTool({"explain", "--config", "/nonexistent", "x"}).status, 2);
}

TEST(ExplainCommandTest, IgnoredTextAndSeparatorsKeepTheirPlacesWhereThePayloadIsNotPlain) {
  const json text = Explain({R"(kavrix://resource/{"mode":0,"zzz":"abc"/**/}.trafficBubble)"});
  EXPECT_EQ(text.at("ignored")[0].at("bytes"), json::parse("[34, 39]"));
  const json separator = Explain({R"(kavrix://resource/{"mode":0/**/}@1.companionBubble)"});
  EXPECT_THAT(separator.at("structure"), ::testing::Contains(json::parse("[32, 33]")));
  EXPECT_EQ(Member(separator, "direction").at("bytes"), json::parse("[33, 34]"));
}

}  // namespace
}  // namespace kavrix::test
