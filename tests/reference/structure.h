#ifndef KAVRIX_TESTS_REFERENCE_STRUCTURE_H_
#define KAVRIX_TESTS_REFERENCE_STRUCTURE_H_

#include <string>

namespace kavrix::reference {

// Describes how a name is taken apart: its kind, where its separators and the values of its JSON object
// stand, the object's keys and the types of their values, and which numeric fields are numbers. Two names
// with the same description differ only in values.
std::string StructureOf(const std::string& name, bool is_marker_name);

}  // namespace kavrix::reference

#endif  // KAVRIX_TESTS_REFERENCE_STRUCTURE_H_
