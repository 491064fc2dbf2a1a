#ifndef KAVRIX_INSPECT_EXAMPLE_H_
#define KAVRIX_INSPECT_EXAMPLE_H_

#include <string>

namespace kavrix::inspect {

// Whether `name` is the better of two examples: the shorter one, of equally long ones the first by its bytes.
// The choice does not depend on the order in which names come.
inline bool IsBetterExample(const std::string& name, const std::string& example) {
  if (name.size() != example.size()) return name.size() < example.size();
  return name < example;
}

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_EXAMPLE_H_
