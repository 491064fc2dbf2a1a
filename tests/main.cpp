#include <gmock/gmock.h>

#include <string_view>

#include "tests/support/golden.h"

// --update-goldens runs only the tests that then rewrite goldens and documents from the tool's output.
int main(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    if (std::string_view(argv[i]) != "--update-goldens") continue;
    kavrix::test::update_goldens = true;
    GTEST_FLAG_SET(filter, "*GoldenTest.*:KindsCommandTest.*");
  }
  ::testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
