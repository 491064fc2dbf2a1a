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

// Returns whether the encoder takes the fields: all of them known, of the right type, numbers in range,
// flags 0 or 1, strings UTF-8. In kinds without JSON strings hold no "_" and no "@", no marker that the
// search finds before the kind's own, and the second text of an ETA no "|". Nothing else is refused.
bool CanBeCarried(const BubbleKindInfo& info, const Json::Value& fields);

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_CARRIED_FIELDS_H_
