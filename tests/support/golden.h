#ifndef KAVRIX_TESTS_SUPPORT_GOLDEN_H_
#define KAVRIX_TESTS_SUPPORT_GOLDEN_H_

namespace kavrix::test {

// Set by the test runner's --update-goldens.
extern bool update_goldens;

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_GOLDEN_H_
