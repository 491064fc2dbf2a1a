#ifndef KAVRIX_TESTS_SUPPORT_CARRIED_FIELDS_H_
#define KAVRIX_TESTS_SUPPORT_CARRIED_FIELDS_H_

#include <json/value.h>

#include "map_resource/bubble_kinds.h"

// What is known of the fields of a kind's names from the list of its keys only, without its reader or writer.
namespace kavrix::test {

bool IsJsonKind(const BubbleKindInfo& info);

// The fields with every key that they leave out, as a name made of them gives them back.
Json::Value CompleteFields(const BubbleKindInfo& info, const Json::Value& fields);

// True when the encoder has no reason to refuse them: known keys, the right types, numbers in range, strings
// that are UTF-8 and, in kinds without JSON, hold no separator and no dot. Others may be refused or not.
bool MustBeTaken(const BubbleKindInfo& info, const Json::Value& fields);

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_CARRIED_FIELDS_H_
