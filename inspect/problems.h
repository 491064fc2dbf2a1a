#ifndef KAVRIX_INSPECT_PROBLEMS_H_
#define KAVRIX_INSPECT_PROBLEMS_H_

#include <string>
#include <vector>

#include "inspect/explanation.h"
#include "inspect/name_reading.h"

namespace kavrix::inspect {

// Returns what is wrong with a name, ordered by its place, then by its code. What has no place comes last.
std::vector<Problem> FindProblems(const NameReading& reading);
std::vector<Problem> ProblemsOf(const std::string& resource_name, EntryPoint entry_point);

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_PROBLEMS_H_
