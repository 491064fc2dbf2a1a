#include "tests/support/mixed_names.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <string_view>

#include "fuzz/mutation.h"
#include "tests/support/sample_names.h"

namespace kavrix::test {

std::vector<std::string> AllGoldenNames() {
  std::vector<std::string> names;
  for (const auto& file : std::filesystem::directory_iterator(KAVRIX_SOURCE_DIR "/tests/golden")) {
    std::ifstream lines(file.path(), std::ios::binary);
    for (std::string line; std::getline(lines, line);) {
      names.push_back(nlohmann::json::parse(line).at("resource_name").get<std::string>());
    }
  }
  std::sort(names.begin(), names.end());
  return names;
}

MixedNames::MixedNames(unsigned seed) : random_(seed), names_(AllGoldenNames()) {
  for (const SampleName& sample : SampleNames()) names_.push_back(sample.name);
}

std::string MixedNames::Next() {
  std::string name = names_[random_() % names_.size()];
  for (auto changes = 1 + random_() % 4; changes > 0; --changes) {
    name = random_() % 3 == 0 ? WithOtherBytes(name) : fuzz::Mutated(name, static_cast<unsigned>(random_()));
  }
  return name;
}

std::string MixedNames::WithOtherBytes(std::string name) {
  constexpr std::string_view kUsual = "{}[],:\"\\@_.|-+0159eE /*";
  // Near to UTF-8: cut short, overlong, a surrogate, above U+10FFFF.
  constexpr std::array<const char*, 6> kOdd = {"\xe4\xb8",         "\xc1\xbf",     "\xe0\x9f\xbf",
                                               "\xf0\x8f\xbf\xbf", "\xed\xa0\x80", "\xf4\x90\x80\x80"};
  const std::size_t at = random_() % (name.size() + 1);
  if (random_() % 8 == 0) return name.insert(at, kOdd[random_() % kOdd.size()]);
  const char byte = random_() % 2 == 0 ? kUsual[random_() % kUsual.size()] : static_cast<char>(random_());
  if (random_() % 2 == 0) return name.insert(at, 1, byte);
  return name.replace(at, 1 + random_() % 3, 1, byte);
}

}  // namespace kavrix::test
