// The library against the reference decoder, on whole names.

#include <filesystem>
#include <fstream>
#include <set>

#include "fuzz/vocabulary.h"
#include "map_resource/bubble_kinds.h"
#include "tests/support/effort.h"
#include "tests/support/mixed_names.h"
#include "tests/support/reference_test.h"
#include "tests/support/sample_names.h"

namespace kavrix::test {
namespace {

using ReferenceNamesTest = ReferenceTest;

// What judges the library must not share its rules.
TEST(ReferenceSourcesTest, IncludeNothingThatDecodes) {
  const std::set<std::string> allowed = {"descriptors", "config", "context", "tests"};
  int includes = 0;
  for (const auto& file : std::filesystem::directory_iterator(KAVRIX_SOURCE_DIR "/tests/reference")) {
    std::ifstream lines(file.path());
    for (std::string line; std::getline(lines, line);) {
      if (line.rfind("#include \"", 0) != 0) continue;
      ++includes;
      const std::string header = line.substr(10, line.rfind('"') - 10);
      EXPECT_TRUE(allowed.count(header.substr(0, header.find('/'))) != 0 ||
                  header == "map_resource/map_resource_manager.h")
          << file.path() << ": " << header;
    }
  }
  EXPECT_GT(includes, 100);
}

TEST_F(ReferenceNamesTest, GoldenNames) {
  const std::vector<std::string> names = AllGoldenNames();
  for (const std::string& name : names) ExpectSameByBoth(name);
  EXPECT_GT(names.size(), 200U);
  EXPECT_GT(decoded_, 200);
}

TEST_F(ReferenceNamesTest, SampleNamesWhereverTheyAreCut) {
  const std::vector<SampleName> samples = SampleNames();
  EXPECT_GE(samples.size(), 3 * AllKindInfos().size());
  for (const auto& [stem, is_marker, name] : samples) {
    for (std::size_t size = 0; size <= name.size(); ++size) ExpectSame(name.substr(0, size), is_marker);
  }
}

TEST_F(ReferenceNamesTest, SampleNamesWithoutOneOfTheirCharacters) {
  for (const auto& [stem, is_marker, name] : SampleNames()) {
    for (std::size_t i = 0; i < name.size(); ++i) {
      ExpectSame(name.substr(0, i) + name.substr(i + 1), is_marker);
    }
  }
}

TEST_F(ReferenceNamesTest, EveryTwoMarkersInOneName) {
  const std::string prefix = MapResourceManager::kavrix_resource_prefix;
  for (const std::string& first : fuzz::Words().markers) {
    for (const std::string& second : fuzz::Words().markers) {
      ExpectSame(prefix + first + second);
      ExpectSame(prefix + R"({"scene":1,"name":")" + first + R"("})" + second);
      ExpectSame(prefix + "text_0_1_1@2" + first + second);
    }
  }
}

TEST_F(ReferenceNamesTest, OtherPrefixes) {
  const std::string usual = MapResourceManager::kavrix_resource_prefix;
  for (const std::string other :
       {"", "p", "a_b@c.d{e}f", "\xe5\x9b\xbe://", "a_prefix_longer_than_the_usual://"}) {
    MapResourceManager::kavrix_resource_prefix = other.c_str();
    for (const auto& [stem, is_marker, name] : SampleNames()) {
      ExpectSame(name, is_marker);
      ExpectSame(other + name.substr(usual.size()), is_marker);
      ExpectSame(name.substr(usual.size()), is_marker);
    }
  }
  MapResourceManager::kavrix_resource_prefix = "kavrix://resource/";
}

TEST_F(ReferenceNamesTest, ChangedNames) {
  const unsigned seed = Seed();
  SCOPED_TRACE(HowToRepeat(seed));
  MixedNames names(seed);
  const int count = IsComplete() ? 2'000'000 : 20'000;
  for (int i = 0; i < count && !HasFailure(); ++i) ExpectSameByBoth(names.Next());
  EXPECT_GT(decoded_, count / 2);
  std::cout << decoded_ << " of " << 2 * count << " decodes gave a descriptor\n";
}

}  // namespace
}  // namespace kavrix::test
