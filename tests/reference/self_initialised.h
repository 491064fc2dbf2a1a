#ifndef KAVRIX_TESTS_REFERENCE_SELF_INITIALISED_H_
#define KAVRIX_TESTS_REFERENCE_SELF_INITIALISED_H_

#include <json/value.h>

#include <string>

#include "descriptors/bubble_draw_descriptor.h"

// The kinds whose descriptors fill themselves from a JSON object.
namespace kavrix::reference {

// From the first brace after the prefix, where the name has it, to the last one; empty when there are none.
std::string BetweenBraces(const std::string& name);

// The keys that these kinds have in common.
void ReadSharedKeys(const Json::Value& root, BubbleDrawDescriptor& bubble);

}  // namespace kavrix::reference

#endif  // KAVRIX_TESTS_REFERENCE_SELF_INITIALISED_H_
