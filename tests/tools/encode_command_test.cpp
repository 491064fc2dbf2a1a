#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "map_resource/bubble_markers.h"
#include "tests/support/golden.h"
#include "tests/support/tool.h"

namespace kavrix::test {
namespace {

using ::testing::HasSubstr;

const std::string kPrefix = "kavrix://resource/";

TEST(EncodeCommandTest, BuildsANameALine) {
  const ToolResult result =
      RunTool({"encode"},
              R"({"kind":"trafficBubble","fields":{"content":"a@b.c","mode":0,"scene":2,"nav_mode":0}}
{"kind": "etaBubble", "fields": {"content": "Home", "sub_text": "12 min", "mode": 0, "scene": 2, "direction": 3}}
{"kind":"marker","fields":{"name":"A","mode":1,"marker_type":4}}
)");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.errors, "");
  EXPECT_EQ(result.output,
            kPrefix +
                "{\"content\":\"a\\u0040b\\u002ec\",\"mode\":0,\"scene\":2,\"nav_mode\":0}.trafficBubble\n" +
                kPrefix + "Home|12 min_0__2@3.etaBubble\n" + kPrefix +
                "{\"mode\":1,\"marker_type\":4,\"name\":\"A\"}.marker\n");
}

TEST(EncodeCommandTest, WithKindTakesFieldsFromArgumentsOrLines) {
  const std::string expected = kPrefix + "{\"mode\":0,\"distance\":5}.turnBubble\n";
  EXPECT_EQ(RunTool({"encode", "--kind", "turnBubble", R"({"distance":5})"}).output, expected);
  EXPECT_EQ(RunTool({"encode", "--kind", "turnBubble"}, R"({"distance":5})").output, expected);
}

// Near-misses: each is refused in a line of its own, and the others are still encoded.
TEST(EncodeCommandTest, RefusesWhatNamesCannotCarryAndGoesOn) {
  struct NearMiss {
    const char* line;
    const char* error;
  };
  const std::vector<NearMiss> near_misses = {
      {R"({"kind":"labelBubble","fields":{"content":"a_b"}})",
       R"(labelBubble: content: "_" at byte 1, column 2, separates fields; the reader would have decoded labelBubble {"mode":1})"},
      {R"({"kind":"trafficBubble","fields":{"mode":2}})",
       "trafficBubble: mode: expected 0 or 1, found 2; the reader would have decoded false"},
      {R"({"kind":"viaCircleBubble","fields":{"is_selected":-1}})",
       "viaCircleBubble: is_selected: expected 0 or 1, found -1; the reader would have decoded true"},
      {R"({"kind":"cameraBubble","fields":{"direction":70000}})",
       "cameraBubble: direction: expected an integer from -32768 to 32767, found 70000; the reader would "
       "have decoded 4464"},
      {R"({"kind":"cameraBubble","fields":{"distance":5.0}})",
       "cameraBubble: distance: expected an integer from -2147483648 to 2147483647, found 5.0; the reader "
       "would have decoded 0"},
      {R"({"kind":"cameraBubble","fields":{"cameras":[{},{"spead":1}]}})",
       "cameraBubble: cameras[1].spead: names of this kind do not carry this key; the reader would have "
       "ignored it"},
      {R"({"kind":"cameraBubble","fields":{"cameras":{}}})",
       "cameraBubble: cameras: expected an array, found {}; the reader would have decoded []"},
      {R"({"kind":"routeExplainBubble","fields":{"second_content":["a",1]}})",
       "routeExplainBubble: second_content[1]: expected a string, found 1; the reader would have decoded no "
       "line"},
      {R"({"kind":"turnBubble","fields":{"lan":7}})",
       R"(turnBubble: lan: expected a string, found 7; the reader would have decoded "")"},
      {R"({"kind":"turnBubble","fields":[]})", "turnBubble: fields: expected an object, found []"},
      {R"({"kind":"inDoorEntriesBubble","fields":{"entries_value":40000}})",
       "inDoorEntriesBubble: entries_value: expected an integer from -32768 to 32767, found 40000; the "
       "reader would have decoded -25536"},
      {R"({"kind":"nope","fields":{}})", "no kind is called \"nope\"; kavrix-resource kinds lists them"},
      {R"({"kind":"turnBubble"})",
       R"(expected {"kind": text, "fields": object} and nothing else, found {"kind":"turnBubble"})"},
      {R"({"kind":"turnBubble","fields":{"lan":"a","lan":"b"}})",
       "not valid JSON: Line 1, Column 42: key \"lan\" is there twice"},
      {"", "not valid JSON: Line 1, Column 1: expected an object or an array, found the end"},
      {R"({"kind":"turnBubble","fields":{"distance":01}})",
       "not valid JSON: Line 1, Column 44: a number does not begin with 0"},
      {R"({"kind":"turnBubble","fields":{"distance":-}})",
       "not valid JSON: Line 1, Column 44: expected a digit, found '}'"},
      {"{\"kind\":\"turnBubble\",\"fields\":{\"lan\":\"a\tb\"}}",
       "not valid JSON: Line 1, Column 40: expected an escape such as \\t, found U+0009"},
      {R"({"kind":"turnBubble"} {})", "not valid JSON: Line 1, Column 23: expected the end, found '{'"},
      {R"({"kind":"nameBubble","fields":{"content":"two\nlines"}})",
       "the name holds a newline, which would end it here; --null ends names in NUL"},
  };
  std::string input;
  std::string errors;
  std::size_t line = 0;
  for (const NearMiss& near_miss : near_misses) {
    input += near_miss.line + std::string("\n");
    errors += "kavrix-resource: line " + std::to_string(++line) + ": " + near_miss.error + "\n";
  }
  const ToolResult result = RunTool({"encode"}, input + R"({"kind":"turnBubble","fields":{}})");
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.errors, errors);
  EXPECT_EQ(result.output, kPrefix + "{\"mode\":0}.turnBubble\n");
}

TEST(EncodeCommandTest, WithNullNamesMayHoldNewlines) {
  using namespace std::string_literals;
  EXPECT_EQ(
      RunTool({"encode", "--null"}, R"({"kind":"nameBubble","fields":{"content":"two\nlines"}})").output,
      kPrefix + "two\nlines_1_0@0.nameBubble\0"s);
}

TEST(EncodeCommandTest, LongNumbersAndTextsGiveShortMessages) {
  const std::string digits(100'000, '7');
  const ToolResult result =
      RunTool({"encode", "--kind", "turnBubble"}, R"({"distance":)" + digits + "}\n" + R"({"distance":")" +
                                                      digits + "\"}\n" + "[" + digits + "\n");
  EXPECT_EQ(result.status, 1);
  EXPECT_LT(result.errors.size(), 600U) << result.errors.substr(0, 1000);
  EXPECT_THAT(RunTool({"encode"}, "{\"kind\":\"" + digits + "\"}").errors,
              HasSubstr("found {\"kind\":\"" + digits.substr(0, 51) + "...\n"));
}

TEST(EncodeCommandTest, LongKindsAndKeysAreCutInMessages) {
  const std::string long_text(100000, 'k');
  const std::string cut = std::string(60, 'k') + "...";
  EXPECT_EQ(RunTool({"encode", "--kind", long_text, "{}"}).errors,
            "kavrix-resource: no kind is called \"" + cut +
                "\"; kavrix-resource kinds lists them\nRun with --help for more information.\n");
  EXPECT_EQ(RunTool({"encode", "--kind", "turnBubble"}, "{\"" + long_text + "\":1}").errors,
            "kavrix-resource: line 1: turnBubble: " + cut +
                ": names of this kind do not carry this key; the reader would have ignored it\n");
}

TEST(EncodeCommandTest, FieldsOnTheCommandLineNeedAKind) {
  const ToolResult result = RunTool({"encode", "{}"});
  EXPECT_EQ(result.status, 2);
  EXPECT_THAT(result.errors, HasSubstr("--kind"));
}

TEST(EncodeCommandTest, DecodeFieldsAndEncodeGiveTheCanonicalFormOfEveryDecodableName) {
  std::string names;
  for (const std::string& name : BubbleGoldenNames()) names += name + "\n";
  const ToolResult fields = RunTool({"decode", "--fields"}, names);
  EXPECT_EQ(fields.status, 1);  // the goldens hold broken names too
  const ToolResult canonical = RunTool({"encode"}, fields.output);
  EXPECT_EQ(canonical.status, 0);
  EXPECT_EQ(canonical.errors, "");
  const ToolResult fields_again = RunTool({"decode", "--fields"}, canonical.output);
  EXPECT_EQ(RunTool({"encode"}, fields_again.output).output, canonical.output);
  EXPECT_EQ(canonical.Lines().size(), fields.Lines().size());
}

TEST(EncodeCommandTest, DecodeFieldsNamesWhatHasNoFields) {
  const ToolResult result =
      RunTool({"decode", "--fields"}, "nonsense\n.turnBubble\n" + kPrefix + "{.turnBubble\n" + kPrefix +
                                          "[].trafficBubble\n" + kPrefix + "\xFF_0_0@1.nameBubble\n");
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(
      result.errors,
      "kavrix-resource: name 1: the name holds no marker\n"
      "kavrix-resource: name 2: the name is shorter than the prefix\n"
      "kavrix-resource: name 4: trafficBubble: the payload does not parse\n"
      "kavrix-resource: name 5: nameBubble: content: \"\xEF\xBF\xBD\" at byte 0, column 1, is not UTF-8\n");
  EXPECT_EQ(result.output, "{\"kind\":\"turnBubble\",\"fields\":{\"mode\":1}}\n");
}

TEST(EncodeCommandTest, KindThatThereIsNotIsRefusedOnceBeforeAnyInput) {
  const ToolResult result = RunTool({"encode", "--kind", "etabubble"}, "{}\n{}\n");
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.errors,
            "kavrix-resource: no kind is called \"etabubble\"; did you mean \"etaBubble\"?\n"
            "Run with --help for more information.\n");
}

}  // namespace
}  // namespace kavrix::test
