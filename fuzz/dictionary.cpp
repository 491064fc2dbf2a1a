// Prints the vocabulary as a libFuzzer dictionary; with "markers", only the markers, one a line, in their
// order.

#include <iostream>
#include <string_view>

#include "fuzz/vocabulary.h"

namespace {

void PrintEntry(const std::string& word) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::cout << '"';
  for (const char c : word) {
    const auto byte = static_cast<unsigned char>(c);
    std::cout << "\\x" << kDigits[byte / 16] << kDigits[byte % 16];
  }
  std::cout << "\"\n";
}

}  // namespace

int main(int argc, char** argv) {
  const kavrix::fuzz::Vocabulary& words = kavrix::fuzz::Words();
  if (argc > 1 && std::string_view(argv[1]) == "markers") {
    for (const std::string& marker : words.markers) std::cout << marker << '\n';
    return 0;
  }
  for (const std::string& key : words.keys) PrintEntry('"' + key + "\":");
  for (const auto* list : {&words.markers, &words.separators, &words.values}) {
    for (const std::string& word : *list) PrintEntry(word);
  }
  return 0;
}
