#include "tests/support/golden.h"

#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

namespace kavrix::test {

bool update_goldens = false;

std::string FirstDifference(const std::string& recorded, const std::string& printed) {
  if (recorded == printed) return "";
  std::istringstream recorded_lines(recorded);
  std::istringstream printed_lines(printed);
  for (int number = 1;; ++number) {
    std::string recorded_line;
    std::string printed_line;
    const bool is_recorded = static_cast<bool>(std::getline(recorded_lines, recorded_line));
    const bool is_printed = static_cast<bool>(std::getline(printed_lines, printed_line));
    if (is_recorded && is_printed && recorded_line == printed_line) continue;
    return "line " + std::to_string(number) + "\nrecorded: " + recorded_line + "\nprinted:  " + printed_line +
           "\n";
  }
}

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
