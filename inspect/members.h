#ifndef KAVRIX_INSPECT_MEMBERS_H_
#define KAVRIX_INSPECT_MEMBERS_H_

#include <vector>

#include "descriptors/flat_members.h"
#include "inspect/json_writer.h"

namespace kavrix::inspect {

// Returns all members of a descriptor in declaration order, each under a path of its own: a member that hides
// one of the base class is "own.scene", and a list has an entry before its items, "cameras", with its length.
// Pairs and triples of style values, which always have all their items, have none.
std::vector<FlatMember> Members(const BubbleDrawDescriptor& descriptor);

// Whether a member holds more than its default. A marker type has no value that means none.
bool SaysSomething(const FlatMember& member);

// Writes the value of a member as JSON, a marker type as its number.
void WriteValue(JsonWriter& json, const FlatMember& member);

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_MEMBERS_H_
