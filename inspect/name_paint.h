#ifndef KAVRIX_INSPECT_NAME_PAINT_H_
#define KAVRIX_INSPECT_NAME_PAINT_H_

#include <cstddef>
#include <string>
#include <vector>

#include "inspect/explanation.h"

namespace kavrix::inspect {

// Gives every byte of a name to one owner: a member or a steer, the structure, or a reason why it is ignored.
// Later calls take bytes from earlier ones.
class NamePaint {
 public:
  NamePaint(std::size_t size, std::string reason) : owners_(size, 0), reasons_({std::move(reason)}) {}

  void Ignore(ByteRange bytes, std::string reason);
  void Structure(ByteRange bytes) { Paint(bytes, next_structure_--); }
  void Taken(ByteRange bytes) { Paint(bytes, kTaken); }

  // Writes the structure and what is ignored.
  void WriteTo(Explanation& explanation) const;

 private:
  static constexpr int kTaken = -1;

  void Paint(ByteRange bytes, int owner);

  // Of each byte: kTaken, a number below it for each piece of the structure, or the index of a reason.
  std::vector<int> owners_;
  int next_structure_ = kTaken - 1;
  std::vector<std::string> reasons_;
};

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_NAME_PAINT_H_
