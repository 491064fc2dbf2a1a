#ifndef KAVRIX_TESTS_SUPPORT_PAYLOAD_AGREEMENT_H_
#define KAVRIX_TESTS_SUPPORT_PAYLOAD_AGREEMENT_H_

#include <string>
#include <string_view>

namespace kavrix::test {

// Reads a payload as the library does, and with JsonCpp, and compares: whether it parses, whether it is
// plain, and every key, text and integer in it. Returns what differs; empty when nothing does.
std::string DisagreementWithJsonCpp(std::string_view payload);

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_PAYLOAD_AGREEMENT_H_
