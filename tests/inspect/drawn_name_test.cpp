#include "inspect/drawn_name.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "inspect/explain.h"
#include "inspect/problems.h"
#include "tests/support/sample_names.h"

namespace kavrix::test {
namespace {

using inspect::InMode;
using ::testing::HasSubstr;

inspect::TransformSetup MakeSetup() {
  inspect::TransformSetup setup;
  setup.context = std::make_shared<KavrixContext>("main-map");
  return setup;
}

std::string WhyFailed(const std::string& name, EntryPoint entry_point = EntryPoint::kBubble) {
  inspect::Decoder decoder(MakeSetup(), entry_point);
  return inspect::WhyFailed(decoder.Decode(name), inspect::ProblemsOf(name, entry_point));
}

TEST(DrawnNameTest, SaysWhyADecodeFailed) {
  EXPECT_EQ(WhyFailed("kavrix://resource/{\"mode\":0}.trafficBubble"), "");
  EXPECT_THAT(WhyFailed("kavrix://resource/{\"mode\":}.trafficBubble"), HasSubstr("no JSON object"));
  EXPECT_THAT(WhyFailed("kavrix://resource/x"), HasSubstr("no marker"));
  EXPECT_THAT(WhyFailed("x.trafficBubble"), HasSubstr("prefix"));
  EXPECT_THAT(WhyFailed("kavrix://resource/x.marker", EntryPoint::kMarker), HasSubstr("no JSON object"));
}

TEST(DrawnNameTest, ModeIsReplacedWhereTheNameHasIt) {
  const auto in_mode = [](const std::string& name, bool is_day) {
    return InMode(inspect::ExplainBubbleName(name, MakeSetup()), is_day);
  };
  EXPECT_EQ(in_mode("kavrix://resource/{\"mode\":0}.trafficBubble", false),
            "kavrix://resource/{\"mode\":1}.trafficBubble");
  EXPECT_EQ(in_mode("kavrix://resource/{\"mode\":7}.trafficBubble", true),
            "kavrix://resource/{\"mode\":0}.trafficBubble");
  EXPECT_EQ(in_mode("kavrix://resource/Main St_12@1.labelBubble", true),
            "kavrix://resource/Main St_0@1.labelBubble");
  EXPECT_EQ(in_mode("kavrix://resource/{}.trafficBubble", true), std::nullopt);
  EXPECT_EQ(in_mode("kavrix://resource/x", true), std::nullopt);
}

TEST(DrawnNameTest, EverySampleWithAModeDecodesInBoth) {
  std::size_t samples = 0;
  for (const SampleName& sample : SampleNames()) {
    const EntryPoint entry_point = sample.is_marker ? EntryPoint::kMarker : EntryPoint::kBubble;
    inspect::Decoder decoder(MakeSetup(), entry_point);
    const inspect::Explanation explanation = sample.is_marker
                                                 ? inspect::ExplainMarkerName(sample.name, MakeSetup())
                                                 : inspect::ExplainBubbleName(sample.name, MakeSetup());
    for (const bool is_day : {true, false}) {
      const std::optional<std::string> name = InMode(explanation, is_day);
      if (!name) continue;
      EXPECT_EQ(decoder.Decode(*name).descriptor->mode_flag, is_day) << *name;
      ++samples;
    }
  }
  EXPECT_GT(samples, 100U);
}

}  // namespace
}  // namespace kavrix::test
