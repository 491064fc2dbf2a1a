#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/tool.h"

namespace kavrix::test {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

const std::string kPrefix = "kavrix://resource/";
const std::string kGoodName = kPrefix + R"({"content":"c","mode":0}.trafficBubble)";

TEST(DecodeCommandTest, PrintsOneJsonObjectAName) {
  const ToolResult result = RunTool({"decode", kGoodName});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.errors, "");
  ASSERT_EQ(result.Lines().size(), 1U);
  const nlohmann::json line = result.JsonLines()[0];
  EXPECT_EQ(line, nlohmann::json::parse(R"({
    "resource_name": "kavrix://resource/{\"content\":\"c\",\"mode\":0}.trafficBubble",
    "kind": "trafficBubble",
    "descriptor": {
      "type": "TrafficDrawDescriptor",
      "base": {"scene": 0, "content": "c", "lan": "", "bubble_kind": 1, "type": 0, "direction": 0,
               "mode_flag": true, "style_name": "traffic", "icon": "", "style_word": 4293216333,
               "style_scale": [1.0, 1.0], "selected": false, "is_force": false},
      "own": {"light_text": "", "extra_type": 0, "style_float_1": 12.0, "style_float_2": 6.0, "style_float_3": 1.5,
              "style_word_2": 4294967295}
    },
    "records": [
      {"level": 0, "tag": "KavrixMapLayerMgr", "function": "GetBubbleDrawDescriptor",
       "message": "[Kavrix][main-map]resource_name:kavrix://resource/{\"content\":\"c\",\"mode\":0}.trafficBubble"},
      {"level": 0, "tag": "KavrixMapLayerMgr_BubbleTraffic", "function": "ParseTrafficBubbleResourceName",
       "message": "[Kavrix][main-map]BubbleDrawDescriptor{scene:0, content:\"c\", lan:\"\", bubble_kind:1, type:0, direction:0, mode_flag:true, style_name:\"traffic\", icon:\"\", style_word:4293216333, style_scale:[1.000000, 1.000000], selected:false, is_force:false}"}
    ],
    "exception": null
  })"));
}

TEST(DecodeCommandTest, NameWithoutAMarkerHasNoKindAndNoDescriptorAndFails) {
  const ToolResult result = RunTool({"decode", "nonsense"});
  EXPECT_EQ(result.status, 1);
  const nlohmann::json line = result.JsonLines().at(0);
  EXPECT_TRUE(line.at("kind").is_null());
  EXPECT_TRUE(line.at("descriptor").is_null());
  EXPECT_EQ(line.at("records").at(1).at("level"), 1);
}

TEST(DecodeCommandTest, NameShorterThanThePrefixShowsItsException) {
  const ToolResult result = RunTool({"decode", ".trafficBubble"});
  EXPECT_EQ(result.status, 1);
  const nlohmann::json line = result.JsonLines().at(0);
  EXPECT_EQ(line.at("kind"), "trafficBubble");
  EXPECT_THAT(line.at("exception").get<std::string>(), Not(IsEmpty()));
  EXPECT_EQ(line.at("descriptor").at("base").at("bubble_kind"), 1);
}

TEST(DecodeCommandTest, UnparsablePayloadFailsAndTheOthersGoOn) {
  const ToolResult result = RunTool({"decode", kPrefix + "{.trafficBubble", kGoodName});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.Lines().size(), 2U);
}

TEST(DecodeCommandTest, Level1RecordsThatTellOfNoFailedParseAreNoFailure) {
  EXPECT_EQ(RunTool({"decode", kPrefix + "{}.ForceDotBubble"}).status, 0);
  EXPECT_EQ(RunTool({"decode", kPrefix + "{.ForceDotBubble"}).status, 1);
}

TEST(DecodeCommandTest, NamesComeFromStandardInputALineEach) {
  const ToolResult result = RunTool({"decode"}, kGoodName + "\r\n\n" + kGoodName);
  EXPECT_EQ(result.status, 1);  // the empty line is a name without a marker
  const auto lines = result.JsonLines();
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_EQ(lines[0].at("resource_name"), kGoodName);
  EXPECT_EQ(lines[1].at("resource_name"), "");
  EXPECT_EQ(lines[2].at("resource_name"), kGoodName);
}

TEST(DecodeCommandTest, WithNullNamesMayHoldNewlinesAndBeEmpty) {
  using namespace std::string_literals;
  const auto lines = RunTool({"decode", "--null"}, "a\nb\0\0c\r\n\0d"s).JsonLines();
  ASSERT_EQ(lines.size(), 4U);
  EXPECT_EQ(lines[0].at("resource_name"), "a\nb");
  EXPECT_EQ(lines[1].at("resource_name"), "");
  EXPECT_EQ(lines[2].at("resource_name"), "c\r\n");
  EXPECT_EQ(lines[3].at("resource_name"), "d");
}

TEST(DecodeCommandTest, EmptyInputPrintsNothingAndSucceeds) {
  const ToolResult result = RunTool({"decode"}, "");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(result.errors, "");
}

TEST(DecodeCommandTest, ArgumentsAreNamesWhateverTheyLookLike) {
  const auto lines = RunTool({"decode", "[a,b]", "{}", "kinds", "", "--", "--help", "[]", "--"}).JsonLines();
  ASSERT_EQ(lines.size(), 7U);
  EXPECT_EQ(lines[0].at("resource_name"), "[a,b]");
  EXPECT_EQ(lines[1].at("resource_name"), "{}");
  EXPECT_EQ(lines[2].at("resource_name"), "kinds");
  EXPECT_EQ(lines[3].at("resource_name"), "");
  EXPECT_EQ(lines[4].at("resource_name"), "--help");
  EXPECT_EQ(lines[5].at("resource_name"), "[]");
  EXPECT_EQ(lines[6].at("resource_name"), "--");
}

TEST(DecodeCommandTest, BytesThatAreNotUtf8PrintAsReplacementCharacters) {
  const ToolResult result = RunTool({"decode"},
                                    "a\xFF\xE4\xBD"
                                    "b\n");
  EXPECT_EQ(result.JsonLines().at(0).at("resource_name"),
            "a\xEF\xBF\xBD\xEF\xBF\xBD"
            "b");
}

TEST(DecodeCommandTest, RubbishOfEveryByteGivesOneLineAName) {
  std::string rubbish;
  for (int i = 0; i < 256 * 64; ++i) rubbish += static_cast<char>(i * 131 + i / 256);
  const ToolResult result = RunTool({"decode", "--null"}, rubbish);
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(static_cast<std::ptrdiff_t>(result.JsonLines().size()),
            std::count(rubbish.begin(), rubbish.end(), '\0') + (rubbish.back() == '\0' ? 0 : 1));
}

TEST(DecodeCommandTest, TenMegabyteNameDecodes) {
  const std::string content(10'000'000, 'x');
  const ToolResult result =
      RunTool({"decode"}, kPrefix + R"({"content":")" + content + R"("}.trafficBubble)" + "\n");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.JsonLines().at(0).at("descriptor").at("base").at("content"), content);
}

TEST(DecodeCommandTest, FloatsReadBackToTheSameFloat) {
  const std::string config = R"({"bubble_layer":{"traffic_style":{"values":[0,0,0.1]}}})";
  const ToolResult result = RunShell("printf '%s' '" + config + "' | \"$TOOL\" decode --config /dev/stdin '" +
                                     kPrefix + "{}.trafficBubble'");
  EXPECT_THAT(result.output, HasSubstr(R"("style_scale":[0.1,0.1])"));
}

TEST(DecodeCommandTest, MarkerBubblesHaveTheStyleOfTheConfiguration) {
  const std::string name = kPrefix + "{}.markerBubble";
  const std::string config = R"({"marker_bubble":{"name":"m","values":[0,7,0.5]}})";
  const ToolResult result =
      RunShell("printf '%s' '" + config + "' | \"$TOOL\" decode --config /dev/stdin '" + name + "'");
  EXPECT_THAT(result.output,
              HasSubstr(R"("style_name":"m","icon":"","style_word":7,"style_scale":[0.5,0.5])"));
  EXPECT_THAT(RunTool({"decode", "--format", "text", name}).output,
              HasSubstr("  style       marker_bubble\n"));
}

TEST(DecodeCommandTest, WholeFloatsPrintWithoutAPointButNotMinusZero) {
  const std::string config =
      R"({"bubble_layer":{"traffic_style":{"values":[0,0,-0.0,0,0,0,0,12.0,-3.0,0.0]}}})";
  const ToolResult result = RunShell("printf '%s' '" + config + "' | \"$TOOL\" decode --config /dev/stdin '" +
                                     kPrefix + R"({"mode":1}.trafficBubble')");
  EXPECT_THAT(result.output, HasSubstr(R"("style_scale":[-0.0,-0.0],)"));
  EXPECT_THAT(result.output, HasSubstr(R"("style_float_1":12,"style_float_2":-3,"style_float_3":0,)"));
  const auto scale = result.JsonLines().at(0).at("descriptor").at("base").at("style_scale").at(0);
  EXPECT_TRUE(scale.is_number_float());
  EXPECT_TRUE(std::signbit(scale.get<float>()));
}

TEST(DecodeCommandTest, ContextNameAndPrefixAreTheUsers) {
  const auto line =
      RunTool({"decode", "--context-name", "", "--prefix", "p:", R"(p:{"content":"c"}.trafficBubble)"})
          .JsonLines()
          .at(0);
  EXPECT_EQ(line.at("descriptor").at("base").at("content"), "c");
  EXPECT_EQ(line.at("records").at(0).at("message"),
            R"([Kavrix][]resource_name:p:{"content":"c"}.trafficBubble)");
}

TEST(DecodeCommandTest, MarkerNamesUseTheSecondEntryPoint) {
  const auto line = RunTool({"decode", "--marker", kPrefix + R"({"name":"A"}.marker)"}).JsonLines().at(0);
  EXPECT_TRUE(line.at("kind").is_null());
  EXPECT_EQ(line.at("descriptor").at("type"), "MarkerDrawDescriptor");
  EXPECT_EQ(line.at("descriptor").at("base").at("content"), kPrefix + "poi_A");
  EXPECT_THAT(line.at("records"), IsEmpty());
}

TEST(DecodeCommandTest, MarkerNameThatDoesNotParseFailsAndLeavesOutUntouched) {
  const ToolResult result = RunTool({"decode", "--marker", kPrefix + "[1].marker"});
  EXPECT_EQ(result.status, 1);
  EXPECT_TRUE(result.JsonLines().at(0).at("descriptor").is_null());
}

TEST(DecodeCommandTest, UnusableConfigurationIsTroubleAndNothingIsDecoded) {
  const ToolResult result = RunShell(
      R"(printf '{"bubble_layer":{"turn_style":{"values":[1,1.5]}}}' | "$TOOL" decode --config /dev/stdin x)");
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(
      result.errors,
      "kavrix-resource: /dev/stdin: turn_style value 2: expected an integer from 0 to 4294967295 or a string "
      "such as \"0xffff0000\", found 1.5\n");
}

TEST(DecodeCommandTest, MissingOrUnreadableFilesAreTrouble) {
  const ToolResult missing = RunTool({"decode", "--config", "/nonexistent.json", "x"});
  EXPECT_EQ(missing.status, 2);
  EXPECT_EQ(missing.errors, "kavrix-resource: cannot open /nonexistent.json: No such file or directory\n");
  const ToolResult folder = RunShell("\"$TOOL\" decode < /");
  EXPECT_EQ(folder.status, 2);
  EXPECT_EQ(folder.errors, "kavrix-resource: cannot read standard input: Is a directory\n");
}

TEST(DecodeCommandTest, FullDiskIsTrouble) {
  const ToolResult full = RunShell("\"$TOOL\" decode x > /dev/full");
  EXPECT_EQ(full.status, 2);
  EXPECT_THAT(full.errors,
              HasSubstr("kavrix-resource: cannot write standard output: No space left on device\n"));
}

TEST(DecodeCommandTest, ReaderThatGoesAwayEndsTheToolWithoutAMessage) {
  for (const std::string command : {"decode", "explain", "check", "decode --jobs 3"}) {
    const ToolResult closed =
        RunShell("(yes | head -100000 | \"$TOOL\" " + command + "; echo status $? >&2) | head -1 >/dev/null");
    EXPECT_EQ(closed.errors, "status 141\n") << command;
  }
}

TEST(DecodeCommandTest, OutputIsFlushedWheneverTheInputPauses) {
  for (const std::string command : {"decode", "decode --jobs 3", "explain", "check"}) {
    const ToolResult result = RunShell(
        "fifo=/tmp/kavrix_pause_$$; mkfifo $fifo; (echo a; exec sleep 60) > $fifo & "
        "timeout 30 \"$TOOL\" " +
        command + " < $fifo | { head -1; kill $!; }; rm $fifo");
    EXPECT_EQ(result.Lines().size(), 1U) << command;
  }
}

TEST(DecodeCommandTest, NameOnTheCommandLineThatWasMeantAsSomethingElseGetsAHint) {
  const ToolResult marker = RunTool({"decode", "kavrix://resource/{}.marker"});
  EXPECT_EQ(marker.status, 1);
  EXPECT_EQ(marker.errors,
            "kavrix-resource: name 1: names that end in \".marker\" are marker names, which need --marker\n");
  const ToolResult file = RunTool({"decode", KAVRIX_SOURCE_DIR "/README.md"});
  EXPECT_EQ(file.errors, "kavrix-resource: name 1: \"" KAVRIX_SOURCE_DIR
                         "/README.md\" is a file; names are read from one with \"--input " KAVRIX_SOURCE_DIR
                         "/README.md\"\n");
  const ToolResult longer = RunTool({"decode", "x.turnBubble", "y.turnBubble"});
  EXPECT_EQ(longer.errors,
            "kavrix-resource: name 1: the name is shorter than the prefix \"kavrix://resource/\"; --prefix "
            "sets another\n");
  EXPECT_EQ(RunTool({"decode"}, "kavrix://resource/{}.marker\nx.turnBubble\n").errors, "");
}

TEST(DecodeCommandTest, UnbufferedResultsComeBeforeTheInputEnds) {
  const ToolResult result = RunShell(
      "fifo=/tmp/kavrix_fifo_$$; mkfifo $fifo; (echo a; exec sleep 60) > $fifo & "
      "timeout 30 \"$TOOL\" decode --unbuffered < $fifo | { head -1; kill $!; }; rm $fifo");
  EXPECT_EQ(result.JsonLines().at(0).at("resource_name"), "a");
}

}  // namespace
}  // namespace kavrix::test
