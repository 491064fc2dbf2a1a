#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "map_resource/map_resource_transform.h"
#include "tests/support/extract.h"
#include "tests/support/plog_records.h"
#include "tests/support/sample_names.h"

// Names are found in the client's plog as they were asked for.
namespace kavrix::test {
namespace {

using ::testing::ElementsAre;

// The log of one request, written by the sink and printed by the formatter that knows tags.
std::string LogOf(const std::string& name, logging::PlogOptions options) {
  RecordKeeper keeper;
  logging::SetLoggerInstance(
      0, {std::make_shared<logging::PlogSink>(keeper, options), logging::LogLevel::kRoutine, {}});
  MapResourceTransform transform(std::make_shared<KavrixContext>("main-map"));
  std::shared_ptr<BubbleDrawDescriptor> out;
  transform.GetBubbleDrawDescriptor(name, out);
  logging::SetLoggerInstance(0, {});
  std::string log;
  for (const std::string& line : keeper.lines) log += line;
  return log;
}

TEST(PlogLinesTest, NamesAreFoundAsTheyWere) {
  std::vector<std::string> names = {
      R"(kavrix://resource/{"content":"say \"hi\" \u4e2d\n\\","mode":0}.trafficBubble)",
      R"(kavrix://resource/C:\new\u0041|x_0_x_0@3.etaBubble)"};
  for (const SampleName& sample : SampleNames()) {
    if (!sample.is_marker) names.push_back(sample.name);
  }
  for (const std::string& name : names) {
    for (const bool escape : {true, false}) {
      for (const bool tag_in_message : {true, false}) {
        EXPECT_THAT(Extract(LogOf(name, {tag_in_message, escape})), ElementsAre(name))
            << escape << tag_in_message;
      }
    }
  }
}

TEST(PlogLinesTest, ControlCharactersInTextsDecodeToTheSame) {
  const std::string name =
      "kavrix://resource/{\"content\":\"two\nlines\x01 \xC2\x9B\",\"mode\":0}.trafficBubble";
  const std::vector<std::string> found = Extract(LogOf(name, {}));
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0], R"(kavrix://resource/{"content":"two\nlines\u0001 \u009b","mode":0}.trafficBubble)");
  MapResourceTransform transform(std::make_shared<KavrixContext>("main-map"));
  std::shared_ptr<BubbleDrawDescriptor> out;
  transform.GetBubbleDrawDescriptor(found[0], out);
  EXPECT_EQ(out->content, "two\nlines\x01 \xC2\x9B");
}

}  // namespace
}  // namespace kavrix::test
