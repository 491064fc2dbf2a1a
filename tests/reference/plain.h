#ifndef KAVRIX_TESTS_REFERENCE_PLAIN_H_
#define KAVRIX_TESTS_REFERENCE_PLAIN_H_

#include <string>

namespace kavrix::reference {

// Whether `text` begins with an object of plain JSON: what every JSON reader reads alike, however deep.
bool IsPlain(const std::string& text);

}  // namespace kavrix::reference

#endif  // KAVRIX_TESTS_REFERENCE_PLAIN_H_
