#ifndef KAVRIX_PAYLOAD_JSON_TREE_H_
#define KAVRIX_PAYLOAD_JSON_TREE_H_

#include <json/value.h>

#include <cstddef>
#include <string_view>

namespace kavrix {

// The deepest value that ParseTree accepts; the root is at depth 1, a value inside n arrays and objects at
// n + 1. Newer versions of JsonCpp stop there; older ones go on to 1000, too deep for a thread with a small
// stack.
inline constexpr std::size_t kDeepestTreeValue = 256;

// Parses `text` with JsonCpp's legacy reader, which accepts comments, and anything after the root. True when
// the root is an object, which is then in `root`; do not read `root` on false. A value deeper than
// kDeepestTreeValue is an error.
bool ParseTree(std::string_view text, Json::Value& root);

}  // namespace kavrix

#endif  // KAVRIX_PAYLOAD_JSON_TREE_H_
