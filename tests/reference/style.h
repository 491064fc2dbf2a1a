#ifndef KAVRIX_TESTS_REFERENCE_STYLE_H_
#define KAVRIX_TESTS_REFERENCE_STYLE_H_

#include "descriptors/bubble_draw_descriptor.h"

namespace kavrix::reference {

// The reading of a style record that most kinds share.
template <class Record>
void CommonStyle(const Record& record, BubbleDrawDescriptor& descriptor) {
  descriptor.style_name = record.name;
  descriptor.style_word = record.Word(2);
  descriptor.style_scale[0] = record.Float(3);
  descriptor.style_scale[1] = record.Float(3);
}

}  // namespace kavrix::reference

#endif  // KAVRIX_TESTS_REFERENCE_STYLE_H_
