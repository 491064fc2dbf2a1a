#ifndef KAVRIX_PAYLOAD_PLAIN_SCANNER_H_
#define KAVRIX_PAYLOAD_PLAIN_SCANNER_H_

#include <string_view>

#include "payload/node.h"

namespace kavrix {

// The deepest value of a plain payload: the root is at depth 1, a value inside n arrays and objects at n + 1.
inline constexpr std::size_t kDeepestPlainValue = 1000;

// Reads a JSON object from the beginning of `text` into `nodes`, which are empty. What follows the object is
// ignored. False when the text is not plain; `nodes` are then of no use.
//
// Plain is what every JSON reader reads alike. Texts may hold any bytes but `"` and `\`. Not plain, though
// JsonCpp accepts all or some of it: comments, escapes in keys, half a surrogate pair, numbers such as 01, 5.
// and -, integers of more than 18 digits, reals of unusual length or exponent, a comma after the last member.
bool ScanPlain(std::string_view text, NodeList& nodes);

}  // namespace kavrix

#endif  // KAVRIX_PAYLOAD_PLAIN_SCANNER_H_
