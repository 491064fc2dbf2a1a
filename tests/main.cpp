#include <gmock/gmock.h>

#include <iostream>
#include <locale>
#include <string>
#include <string_view>

#include "tests/support/golden.h"

namespace {

constexpr std::string_view kLocale = "--locale=";

// --update-goldens runs only the tests that then rewrite goldens and documents from the tool's output.
// --locale=NAME runs all tests under that locale, as the C and as the C++ global one: scripts/test-locale.
bool TakeArgument(std::string_view argument) {
  if (argument == "--update-goldens") {
    kavrix::test::update_goldens = true;
    GTEST_FLAG_SET(filter, "*GoldenTest.*:KindsCommandTest.*");
    return true;
  }
  if (argument.substr(0, kLocale.size()) == kLocale) {
    std::locale::global(std::locale(std::string(argument.substr(kLocale.size()))));
    return true;
  }
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  ::testing::InitGoogleMock(&argc, argv);  // takes googletest's own arguments
  for (int i = 1; i < argc; ++i) {
    if (TakeArgument(argv[i])) continue;
    std::cerr << argv[0] << ": there is no argument \"" << argv[i]
              << "\", expected --update-goldens, --locale=NAME or one of googletest's\n";
    return 2;
  }
  return RUN_ALL_TESTS();
}
