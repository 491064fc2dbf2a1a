#include <gmock/gmock.h>

#include <cstdlib>
#include <locale>
#include <string_view>

#include "tests/support/golden.h"

namespace {

// KAVRIX_TEST_LOCALE=NAME runs all tests under that locale, as the C and as the C++ global one:
// scripts/test-locale.
void SetLocale() {
  const char* const name = std::getenv("KAVRIX_TEST_LOCALE");
  if (name != nullptr) std::locale::global(std::locale(name));  // a named one is the C library's too
}

}  // namespace

// --update-goldens runs only the tests that then rewrite goldens and documents from the tool's output.
int main(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    if (std::string_view(argv[i]) != "--update-goldens") continue;
    kavrix::test::update_goldens = true;
    GTEST_FLAG_SET(filter, "*GoldenTest.*:KindsCommandTest.*");
  }
  ::testing::InitGoogleMock(&argc, argv);
  SetLocale();
  return RUN_ALL_TESTS();
}
