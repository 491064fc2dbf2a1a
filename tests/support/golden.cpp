#include "tests/support/golden.h"

namespace kavrix::test {

bool update_goldens = false;

}  // namespace kavrix::test
