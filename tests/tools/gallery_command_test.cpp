#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "map_resource/bubble_kinds.h"
#include "tests/support/gallery_page.h"
#include "tests/support/mixed_names.h"
#include "tests/support/read_picture.h"
#include "tests/support/sample_names.h"
#include "tests/support/tool.h"

namespace kavrix::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

constexpr char kReplaced[] = "\xEF\xBF\xBD";

std::string Traffic(const std::string& members) {
  return "kavrix://resource/{" + members + "}.trafficBubble";
}

TEST(GalleryCommandTest, WithoutNamesItHasTheSamplesOfAllKinds) {
  const ToolResult result = RunTool({"gallery"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.errors, "");
  const Page page(result.output);
  page.ExpectHarmless();
  const std::vector<std::string> codes = page.Texts("code");
  std::size_t samples = 0;
  for (const SampleName& sample : SampleNames()) {
    EXPECT_THAT(codes, Contains(sample.name));
    ++samples;
  }
  std::vector<std::string> kinds;
  for (const BubbleKindInfo* const info : AllKindInfos()) kinds.emplace_back(info->Name());
  kinds.back() = "Marker names";
  EXPECT_EQ(page.Texts("h2"), kinds);
  EXPECT_EQ(page.Texts("a"), kinds);
  EXPECT_EQ(page.Texts("h1"), std::vector<std::string>{"Samples"});
  EXPECT_EQ(page.Texts("figure").size(), 2 * samples);
  EXPECT_THAT(page.Texts("figcaption"), Not(Contains(HasSubstr("nothing"))));
  EXPECT_EQ(RunTool({"gallery"}).output, result.output);
}

TEST(GalleryCommandTest, NamesComeFromArgumentsElseFromStandardInput) {
  const std::string name = Traffic(R"("content":"Jam","mode":0)");
  const ToolResult result = RunTool({"gallery", name});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(Page(result.output).Texts("h2"), ElementsAre("trafficBubble"));
  EXPECT_THAT(Page(result.output).Texts("h1"), ElementsAre("Bubbles"));
  EXPECT_EQ(RunTool({"gallery"}, name + "\n").output, result.output);
  EXPECT_EQ(RunTool({"gallery", "--null"}, name + '\0').output, result.output);
  EXPECT_THAT(
      Page(RunTool({"gallery", "--marker", R"(kavrix://resource/{"mode":0,"name":"P"}.marker)"}).output)
          .Texts("h2"),
      ElementsAre("Marker names"));
}

TEST(GalleryCommandTest, NamesAreGroupedByKindInTheOrderOfRecognitionThenThoseWithoutOne) {
  const ToolResult result =
      RunTool({"gallery", "--jobs", "3"},
              "nothing\nkavrix://resource/B_0@1.labelBubble\n" + Traffic(R"("mode":0,"content":"1")") +
                  "\nkavrix://resource/A_0@1.labelBubble\n" + Traffic(R"("mode":1,"content":"2")") + "\n");
  EXPECT_EQ(result.status, 1);
  const Page page(result.output);
  page.ExpectHarmless();
  EXPECT_THAT(page.Texts("h2"), ElementsAre("trafficBubble", "labelBubble", "No kind"));
  EXPECT_THAT(page.Texts("li"), ::testing::IsSupersetOf({"trafficBubble 2 names", "labelBubble 2 names",
                                                         "No kind 1 name, 1 failed"}));
  const std::string& text = result.output;
  EXPECT_LT(text.find("resource/B_0"), text.find("resource/A_0"));
}

// The other mode's picture is that of the same name with the other mode, style values included.
TEST(GalleryCommandTest, DayAndNightStandSideBySide) {
  const std::string day = Traffic(R"("content":"Jam","mode":0)");
  const std::string night = Traffic(R"("content":"Jam","mode":1)");
  const std::string of_day = RunTool({"draw", day}).output;
  const std::string of_night = RunTool({"draw", night}).output;
  EXPECT_THAT(of_day, HasSubstr("0xffffffff"));
  EXPECT_THAT(of_night, HasSubstr("0xff1c1c1e"));
  const std::string trimmed_day = of_day.substr(0, of_day.size() - 1);
  const std::string trimmed_night = of_night.substr(0, of_night.size() - 1);
  for (const std::string& name : {day, night}) {
    const std::string page = RunTool({"gallery", name}).output;
    EXPECT_THAT(page, HasSubstr(trimmed_day));
    EXPECT_THAT(page, HasSubstr(trimmed_night));
  }
  EXPECT_THAT(Page(RunTool({"gallery", day}).output).Texts("figcaption"),
              ElementsAre("day, as the name decodes", "night"));
  EXPECT_THAT(Page(RunTool({"gallery", night}).output).Texts("figcaption"),
              ElementsAre("day", "night, as the name decodes"));
  EXPECT_THAT(Page(RunTool({"gallery", Traffic("")}).output).Texts("figcaption"),
              ElementsAre("day, as the name decodes", "night, with the style values of the other mode"));
  EXPECT_THAT(Page(RunTool({"gallery", "kavrix://resource/{}.ForceDotBubble"}).output).Texts("figcaption"),
              ElementsAre("day, as the name decodes", "night"));
}

TEST(GalleryCommandTest, ModeOfANameThatFailsIsNotKnown) {
  const Page page(RunTool({"gallery", "kavrix://resource/{\"mode\":}.trafficBubble"}).output);
  EXPECT_THAT(page.Texts("figcaption"), ElementsAre("day; the mode of the name is not known",
                                                    "night; the mode of the name is not known"));
}

TEST(GalleryCommandTest, StyleValuesOfARecordWithoutANameAreToldToo) {
  const ToolResult result = RunShell(
      "printf '%s' '{\"context_name\":\"c\",\"multi_light_type\":0,\"bubble_layer\":{\"traffic_style\":"
      "{\"name\":\"\",\"values\":[0,\"0xff00ff01\"]}},\"marker_bubble\":{\"name\":\"\"}}' | "
      "\"$TOOL\" gallery --config /dev/stdin 'kavrix://resource/{}.trafficBubble'");
  ASSERT_EQ(result.status, 0) << result.errors;
  EXPECT_THAT(Page(result.output).Texts("figcaption"),
              ElementsAre("day, as the name decodes", "night, with the style values of the other mode"));
}

// Where the mode stands in a long name is not looked for: that would take longer than all the rest.
TEST(GalleryCommandTest, LongNameIsDrawnInBothModes) {
  const std::string name = Traffic("\"mode\":0,\"content\":\"" + std::string(20000, 'n') + '"');
  EXPECT_THAT(Page(RunTool({"gallery", name}).output).Texts("figcaption"),
              ElementsAre("day, as the name decodes", "night, with the style values of the other mode"));
}

TEST(GalleryCommandTest, PicturesOfANameAreToldApart) {
  const Page page(RunTool({"gallery", Traffic(R"("content":"Jam","mode":0)")}).output);
  std::vector<std::string> titles = page.Texts("title");
  titles.erase(titles.begin());  // the page's own
  EXPECT_THAT(titles, ElementsAre("trafficBubble: Jam, day", "trafficBubble: Jam, night"));
  EXPECT_THAT(page.Texts("h3"), ElementsAre(Traffic(R"("content":"Jam","mode":0)")));
}

TEST(GalleryCommandTest, JobsMakeTheSamePage) {
  MixedNames mixed(6);
  std::string input;
  for (int i = 0; i < 200; ++i) input += mixed.Next() + '\0';
  const ToolResult one = RunTool({"gallery", "--null"}, input);
  const ToolResult two = RunTool({"gallery", "--null", "--jobs", "2"}, input);
  EXPECT_EQ(one.output, two.output);
  EXPECT_EQ(one.errors, two.errors);
  EXPECT_EQ(one.status, two.status);
}

TEST(GalleryCommandTest, OptionsThatChangeNothingAreNone) {
  EXPECT_EQ(RunTool({"gallery", "--unbuffered", "x"}).status, 2);
  EXPECT_EQ(RunTool({"gallery", "--context-name", "c", "x"}).status, 2);
}

TEST(GalleryCommandTest, ClosedPipeEndsIt) {
  const ToolResult result =
      RunShell("{ \"$TOOL\" gallery < /dev/null; echo $? >&2; } | head -c 1 > /dev/null");
  EXPECT_EQ(result.errors, "141\n");
}

TEST(GalleryCommandTest, ShowsProblemsAndMembers) {
  const Page page(RunTool({"gallery", Traffic(R"("contnt":"Jam","mode":0,"direction":2)")}).output);
  EXPECT_THAT(page.Texts("li"),
              Contains("warning: \"contnt\" is not a key of trafficBubble [unknown-key] Did you mean "
                       "content?"));
  EXPECT_THAT(page.Texts("tr"), Contains("direction2"));
  EXPECT_THAT(page.Texts("tr"), Contains("style_word4293216333 (0xffe5484d)"));
  EXPECT_THAT(page.Texts("tr"), Not(Contains(HasSubstr("lan"))));
  EXPECT_THAT(page.Texts("summary"), ElementsAre(HasSubstr("TrafficDrawDescriptor: ")));
}

TEST(GalleryCommandTest, NameThatIsNotDecodedHasOnePictureThatSaysSo) {
  const ToolResult result = RunTool({"gallery", "kavrix://resource/x"});
  EXPECT_EQ(result.status, 1);
  const Page page(result.output);
  EXPECT_THAT(page.Texts("figcaption"), ElementsAre("nothing is drawn"));
  EXPECT_THAT(page.Texts("strong"), ElementsAre("error"));
  EXPECT_TRUE(page.Texts("table").empty());
  EXPECT_THAT(Page(RunTool({"gallery", "a.trafficBubble"}).output).Texts("p"),
              Contains(HasSubstr("exception: ")));
}

TEST(GalleryCommandTest, HostileNamesStayTexts) {
  const std::vector<std::string> names = {
      Traffic("\"content\":\"</svg><script>alert(1)</script>\",\"mode\":0"),
      Traffic("\"content\":\"]]>&lt;<!--'\",\"mode\":1"),
      Traffic("\"content\":\"\xE2\x80\xAE evil\",\"x\xE2\x80\xAE<\":0"),
      Traffic("\"content\":\"\xFF\xED\xA0\x80\xEF\xBF\xBE\""),
      std::string("kavrix://resource/a") + "\x01\x1F_0@1.labelBubble",
      "</code><script>x</script>",
      "\xFF\xFE",
      "",
  };
  std::string input;
  for (const std::string& name : names) input += name + '\0';
  const Page page(RunTool({"gallery", "--null"}, input).output);
  page.ExpectHarmless();
  EXPECT_THAT(page.text(), Not(HasSubstr("<script")));
  for (const std::string& name : names) {
    EXPECT_THAT(page.Texts("h3"), Contains(name.empty() ? "(empty name)" : WithReplacements(name)));
  }

  const std::string with_nul = Traffic(std::string("\"content\":\"a") + '\0' + "b\"");
  const Page nul(RunTool({"gallery"}, with_nul + "\n").output);
  EXPECT_THAT(nul.Texts("code"), Contains(Traffic(std::string("\"content\":\"a") + kReplaced + "b\"")));
}

TEST(GalleryCommandTest, AnyNamesMakeAPageThatReadersTake) {
  MixedNames mixed(5);
  std::vector<std::string> names;
  std::string input;
  while (names.size() < 400) {
    std::string name = mixed.Next();
    if (name.find('\0') != std::string::npos) continue;  // ends a name
    input += name + '\0';
    names.push_back(std::move(name));
  }
  for (const bool marker : {false, true}) {
    std::vector<std::string> arguments = {"gallery", "--null", "--jobs", "2"};
    if (marker) arguments.emplace_back("--marker");
    const Page page(RunTool(arguments, input).output);
    page.ExpectHarmless();
    std::multiset<std::string> shown;
    for (const std::string& code : page.Texts("code")) shown.insert(code);
    for (const std::string& name : names) {
      EXPECT_TRUE(name.size() > 4000 || shown.count(WithReplacements(name)) != 0) << name;
    }
  }
}

TEST(GalleryCommandTest, PageIsBounded) {
  std::string input;
  for (int i = 0; i < 1003; ++i) input += "kavrix://resource/A_0@1.labelBubble\n";
  const ToolResult many = RunTool({"gallery", "--jobs", "2"}, input);
  EXPECT_EQ(many.status, 1);
  EXPECT_EQ(many.errors, "kavrix-resource: the page has the first 1000 names; 3 are left out\n");
  EXPECT_LT(many.output.size(), 10000000U);
  EXPECT_THAT(many.output, HasSubstr("3 more names are left out."));
  std::size_t articles = 0;
  for (std::size_t at = 0; (at = many.output.find("<article>", at)) != std::string::npos; ++at) ++articles;
  EXPECT_EQ(articles, 1000U);

  std::string cameras = "{\"type\":1}";
  for (int i = 0; i < 3000; ++i) cameras += ",{\"type\":1,\"x" + std::to_string(i) + "\":1}";
  const ToolResult large =
      RunTool({"gallery"}, "kavrix://resource/{\"snap_text\":\"" + std::string(500000, 'a') +
                               "\",\"cameras\":[" + cameras + "]}.cameraBubble\n");
  EXPECT_EQ(large.status, 0) << large.errors;
  EXPECT_LT(large.output.size(), 100000U);
  const Page page(large.output);
  EXPECT_THAT(page.Texts("li"), Contains(HasSubstr("more")));
  EXPECT_THAT(page.Texts("td"), Contains(HasSubstr("more")));
}

TEST(GalleryCommandTest, PrefixThatHoldsAMarkerIsNoTrouble) {
  const ToolResult result =
      RunTool({"gallery", "--prefix", "x.trafficBubble", "x.trafficBubble{\"mode\":0}.trafficBubble"});
  EXPECT_EQ(result.status, 0) << result.errors;
  Page(result.output).ExpectHarmless();
}

TEST(GalleryCommandTest, FullDiskIsAnError) {
  const ToolResult result = RunShell("\"$TOOL\" gallery < /dev/null > /dev/full");
  EXPECT_EQ(result.status, 2);
  EXPECT_THAT(result.errors, HasSubstr("No space left on device"));
}

}  // namespace
}  // namespace kavrix::test
