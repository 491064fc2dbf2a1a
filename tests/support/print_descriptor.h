#ifndef KAVRIX_TESTS_SUPPORT_PRINT_DESCRIPTOR_H_
#define KAVRIX_TESTS_SUPPORT_PRINT_DESCRIPTOR_H_

#include <limits>
#include <ostream>

#include "descriptors/bubble_draw_descriptor.h"

namespace kavrix {

// googletest calls it to show all members of the object when a comparison fails, even one through the base
// type. It prints floats that are not equal differently.
inline void PrintTo(const BubbleDrawDescriptor& descriptor, std::ostream* stream) {
  const std::streamsize precision = stream->precision(std::numeric_limits<float>::max_digits10);
  WriteAllMembers(*stream, descriptor);
  stream->precision(precision);
}

}  // namespace kavrix

#endif  // KAVRIX_TESTS_SUPPORT_PRINT_DESCRIPTOR_H_
