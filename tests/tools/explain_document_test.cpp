#include <gtest/gtest.h>

#include <fstream>
#include <utility>

#include "tests/support/golden.h"
#include "tests/support/read_file.h"
#include "tests/support/sample_names.h"
#include "tests/support/tool.h"

namespace kavrix::test {
namespace {

const std::vector<std::string> kBrokenNames = {
    R"(kavrix://resource/{"contnt":"Jam","Direction":1,"mode":"0"}.trafficBubble)",
    R"(kavrix://resource/{"content":"Jam" "mode":0}.trafficBubble)",
    R"(kavrix://resource/{"mode":0,"content":"Jam","mode":2}.trafficBubble)",
    R"(kavrix://resource/{"mode":0}.TrafficBubble)",
    R"(kavrix://resource/A_B_0_0@1.nameBubble)",
    R"(kavrix://resource/A_x_0@70000.nameBubble)",
    R"(kavrix://resource/{"mode":0}.SafeWarningBubble)",
    R"(kavrix://resource/{"mode":0,"cameras":[{"typ":1},7]}.cameraBubble and more)",
    R"(x.turnBubble)",
    R"(kavrix://resource/{/* day */"mode":0,"scene":3000000000}.trafficBubble)",
};

// Returns the text of the document from the generated part on.
std::string PrintedExplanations() {
  std::string printed;
  const auto add = [&](const std::string& name, const std::vector<std::string>& options) {
    std::vector<std::string> arguments = {"explain", "--format", "text"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    arguments.push_back(name);
    printed += "\n```\n" + RunTool(arguments).output + "```\n";
  };
  std::string stem;
  for (const SampleName& sample : SampleNames()) {
    if (std::exchange(stem, sample.stem) == sample.stem) continue;  // the first of each kind
    add(sample.name, sample.is_marker ? std::vector<std::string>{"--marker"} : std::vector<std::string>{});
  }
  for (const std::string& name : kBrokenNames) add(name, {});
  return printed;
}

TEST(ExplainDocumentGoldenTest, ShowsWhatTheToolPrintsForASampleOfEachKindAndForBrokenNames) {
  const std::string path = KAVRIX_SOURCE_DIR "/docs/explain.md";
  const std::string begin = "<!-- from here on: kavrix-resource explain --format text -->\n";
  const std::string document = ReadFile(path);
  const std::size_t place = document.find(begin);
  ASSERT_NE(place, std::string::npos);
  const std::string printed = PrintedExplanations();
  if (update_goldens) {
    std::ofstream(path, std::ios::binary) << document.substr(0, place + begin.size()) << printed;
    return;
  }
  EXPECT_EQ(FirstDifference(document.substr(place + begin.size()), printed), "") << kHowToUpdate;
}

}  // namespace
}  // namespace kavrix::test
