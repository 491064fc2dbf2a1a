#ifndef KAVRIX_TESTS_REFERENCE_FIELDS_H_
#define KAVRIX_TESTS_REFERENCE_FIELDS_H_

#include <cstdint>
#include <string>
#include <vector>

#include "descriptors/bubble_draw_descriptor.h"

// The pieces of a name, and the fields in them.
namespace kavrix::reference {

// Everything after as many characters as the prefix has; the prefix is not compared. Throws std::out_of_range
// for a name that is shorter.
std::string AfterPrefix(const std::string& name);

// The same without the last `marker_length` characters, which are not compared either; to the end of the name
// where they are more than there are.
std::string BetweenPrefixAndMarker(const std::string& name, std::size_t marker_length);

// The pieces between the separators: one more than there are separators, empty ones included.
std::vector<std::string> Split(const std::string& text, char separator);

// True when the whole text is a decimal integer of 32 bits, with or without a sign; else `value` is
// unchanged.
bool ToInt(const std::string& text, int& value);

inline std::int16_t Low16(int value) { return static_cast<std::int16_t>(value); }

// Stores the direction of `tail`, a number, a dot and the marker's word, unless it is of another shape.
void ReadDirection(const std::string& tail, BubbleDrawDescriptor& descriptor);

// Stores whether the field is 0, unless it is no number.
void ReadMode(const std::string& field, BubbleDrawDescriptor& descriptor);

}  // namespace kavrix::reference

#endif  // KAVRIX_TESTS_REFERENCE_FIELDS_H_
