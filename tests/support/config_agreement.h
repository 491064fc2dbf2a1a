#ifndef KAVRIX_TESTS_SUPPORT_CONFIG_AGREEMENT_H_
#define KAVRIX_TESTS_SUPPORT_CONFIG_AGREEMENT_H_

#include <string>

namespace kavrix::test {

// Reads a configuration file by the library and by the reference and compares: whether it is taken, and every
// name, value and number that it gives. Returns what differs; empty when nothing does.
std::string DisagreementOnConfig(const std::string& text);

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_CONFIG_AGREEMENT_H_
