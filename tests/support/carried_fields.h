#ifndef KAVRIX_TESTS_SUPPORT_CARRIED_FIELDS_H_
#define KAVRIX_TESTS_SUPPORT_CARRIED_FIELDS_H_

#include <json/value.h>

#include "map_resource/bubble_kinds.h"

// Derives facts about the fields of a kind's names only from its keys and their types, without its reader or
// writer.
namespace kavrix::test {

bool IsJsonKind(const BubbleKindInfo& info);

// Returns the fields with the keys that they leave out added, as decoding a name built from them gives them.
Json::Value CompleteFields(const BubbleKindInfo& info, const Json::Value& fields);

// Returns true when the encoder must accept the fields: known keys, right types, numbers in range, strings
// that are UTF-8 and, in kinds without JSON, hold no separator and no dot. It may accept others too.
bool MustBeTaken(const BubbleKindInfo& info, const Json::Value& fields);

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_CARRIED_FIELDS_H_
