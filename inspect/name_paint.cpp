#include "inspect/name_paint.h"

#include <algorithm>
#include <utility>

namespace kavrix::inspect {

void NamePaint::Ignore(ByteRange bytes, std::string reason) {
  Paint(bytes, static_cast<int>(reasons_.size()));
  reasons_.push_back(std::move(reason));
}

void NamePaint::Paint(ByteRange bytes, int owner) {
  const std::size_t end = std::min(bytes.end, owners_.size());
  for (std::size_t i = bytes.begin; i < end; ++i) owners_[i] = owner;
}

void NamePaint::WriteTo(Explanation& explanation) const {
  for (std::size_t begin = 0; begin < owners_.size();) {
    std::size_t end = begin + 1;
    while (end < owners_.size() && owners_[end] == owners_[begin]) ++end;
    const int owner = owners_[begin];
    if (owner < kTaken) explanation.structure.push_back({begin, end});
    if (owner >= 0) explanation.ignored.push_back({{begin, end}, reasons_[static_cast<std::size_t>(owner)]});
    begin = end;
  }
}

}  // namespace kavrix::inspect
