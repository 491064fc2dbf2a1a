#ifndef KAVRIX_TESTS_SUPPORT_UTF8_AGREEMENT_H_
#define KAVRIX_TESTS_SUPPORT_UTF8_AGREEMENT_H_

#include <string>
#include <string_view>

namespace kavrix::test {

// Compares what util/utf8.h makes of a text with plain code, character by character. Returns what differs;
// empty when nothing does.
std::string DisagreementOnUtf8(std::string_view text);

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_UTF8_AGREEMENT_H_
