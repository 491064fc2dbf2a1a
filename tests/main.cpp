#include <gmock/gmock.h>

#include <string_view>

#include "tests/support/golden.h"

// --update-goldens rewrites the golden files from the tool's current output.
int main(int argc, char** argv) {
  ::testing::InitGoogleMock(&argc, argv);
  for (int i = 1; i < argc; ++i) {
    if (std::string_view(argv[i]) == "--update-goldens") kavrix::test::update_goldens = true;
  }
  return RUN_ALL_TESTS();
}
