#include "tests/support/explain_experiment.h"

#include <gtest/gtest.h>

#include <iostream>
#include <optional>
#include <regex>

#include "tests/support/global_locale.h"
#include "tests/support/golden.h"
#include "tests/support/sample_names.h"

namespace kavrix {

static void PrintTo(const BubbleKindInfo* info, std::ostream* stream) { *stream << info->marker; }

namespace test {
namespace {

class ExplainExperimentTest : public ::testing::TestWithParam<const BubbleKindInfo*> {};

TEST_P(ExplainExperimentTest, OnlyWhatAnExplanationSaysChangesWithTheNameAndTheConfiguration) {
  const BubbleKindInfo& info = *GetParam();
  std::vector<std::string> names = GoldenNames(info);
  for (const SampleName& sample : SampleNames()) {
    if (sample.stem == info.stem) names.push_back(sample.name);
  }
  ExperimentCounts counts;
  static const std::regex real("[0-9]\\.[0-9]");
  for (const std::string& name : names) {
    // A replaced byte may leave the payload to JsonCpp, which reads reals by the global locale.
    std::optional<ClassicLocale> classic;
    if (std::regex_search(name, real)) classic.emplace();
    for (const std::string& fault : FindExplanationFaults(name, info.entry_point, counts))
      ADD_FAILURE() << fault;
  }
  RecordProperty("replacements", std::to_string(counts.replacements));
  RecordProperty("skipped", std::to_string(counts.skipped));
  std::cout << info.stem << ": " << names.size() << " names, " << counts.replacements << " replacements, "
            << counts.skipped << " skipped\n";
  EXPECT_LE(2 * counts.skipped, counts.replacements);
}

INSTANTIATE_TEST_SUITE_P(Kinds, ExplainExperimentTest, ::testing::ValuesIn(AllKindInfos()),
                         [](const auto& test) { return test.param->stem; });

}  // namespace
}  // namespace test
}  // namespace kavrix
