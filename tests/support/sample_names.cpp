#include "tests/support/sample_names.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace kavrix::test {

std::vector<SampleName> SampleNames() {
  std::vector<SampleName> names;
  for (const auto& file : std::filesystem::directory_iterator(KAVRIX_SOURCE_DIR "/samples")) {
    if (file.path().extension() != ".txt") continue;
    const std::string stem = file.path().stem();
    std::ifstream lines(file.path(), std::ios::binary);
    for (std::string line; std::getline(lines, line);) names.push_back({stem, stem == "marker_name", line});
  }
  std::sort(names.begin(), names.end(), [](const SampleName& a, const SampleName& b) {
    return a.stem != b.stem ? a.stem < b.stem : a.name < b.name;
  });
  return names;
}

}  // namespace kavrix::test
