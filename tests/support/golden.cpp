#include "tests/support/golden.h"

#include <fstream>
#include <nlohmann/json.hpp>

namespace kavrix::test {

bool update_goldens = false;

std::string GoldenPath(const BubbleKindInfo& info) {
  return std::string(KAVRIX_SOURCE_DIR "/tests/golden/") + info.stem + ".jsonl";
}

std::vector<std::string> GoldenNames(const BubbleKindInfo& info) {
  std::ifstream golden(GoldenPath(info), std::ios::binary);
  std::vector<std::string> names;
  for (std::string line; std::getline(golden, line);) {
    names.push_back(nlohmann::json::parse(line).at("resource_name"));
  }
  return names;
}

std::vector<std::string> BubbleGoldenNames() {
  std::vector<std::string> all;
  for (const BubbleKind kind : kBubbleKinds) {
    const std::vector<std::string> names = GoldenNames(InfoOf(kind));
    all.insert(all.end(), names.begin(), names.end());
  }
  return all;
}

}  // namespace kavrix::test
