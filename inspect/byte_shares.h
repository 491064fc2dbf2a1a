#ifndef KAVRIX_INSPECT_BYTE_SHARES_H_
#define KAVRIX_INSPECT_BYTE_SHARES_H_

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <utility>

#include "inspect/explanation.h"
#include "inspect/name_reading.h"

namespace kavrix::inspect {

// Of each key, and of each item's key, the last that was read.
using ReadKeys = std::map<std::pair<std::string, std::optional<std::size_t>>, const TracedKey*>;

ReadKeys ReadKeysOf(const NameTrace& trace);

// Returns null when the key was not read.
const TracedKey* FindIn(const ReadKeys& keys, const std::string& key, std::optional<std::size_t> item);

// Fills structure and ignored bytes: those that belong to no member and no steer of the explanation.
void ShareOutBytes(const NameReading& reading, const ReadKeys& read, Explanation& explanation);

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_BYTE_SHARES_H_
