#include "inspect/shrink.h"

#include <algorithm>
#include <set>
#include <string_view>
#include <vector>

#include "inspect/name_reading.h"
#include "inspect/problems.h"
#include "util/utf8.h"

namespace kavrix::inspect {
namespace {

// How a name fails.
struct Failure {
  const BubbleKindInfo* kind = nullptr;
  std::string first_error;      // its code; empty when there is none
  std::set<std::string> codes;  // of all problems
};

Failure FailureOf(const std::string& name, EntryPoint entry_point) {
  const NameReading reading(name, entry_point);
  Failure failure;
  failure.kind = reading.info();
  for (const Problem& problem : FindProblems(reading)) {
    const bool is_first_error = failure.first_error.empty() && problem.severity == Severity::kError;
    if (is_first_error) failure.first_error = problem.code;
    failure.codes.insert(problem.code);
  }
  return failure;
}

// The name's characters; a piece that is not UTF-8 counts as one.
std::vector<std::string> CharactersOf(std::string_view name) {
  std::vector<std::string> characters;
  while (!name.empty()) {
    const std::size_t length = NextUtf8(name).length;
    characters.emplace_back(name.substr(0, length));
    name.remove_prefix(length);
  }
  return characters;
}

std::string Joined(const std::vector<std::string>& characters) {
  std::string name;
  for (const std::string& character : characters) name += character;
  return name;
}

// Leaves out as much as it can, in ever smaller stretches; what was needed first may not be needed at the
// end, so it begins again until nothing goes.
class Shrinker {
 public:
  Shrinker(const std::string& name, EntryPoint entry_point)
      : entry_point_(entry_point), failure_(FailureOf(name, entry_point)), left_(CharactersOf(name)) {}

  bool Fails() const { return !failure_.first_error.empty(); }

  std::string Shrink() {
    do {
      for (std::size_t size = left_.size() / 2; size > 1; size /= 2) LeaveOut(size);
    } while (LeaveOut(1));
    return Joined(left_);
  }

 private:
  // Tries each stretch of `size` characters. True when one went.
  bool LeaveOut(std::size_t size) {
    const std::size_t before = left_.size();
    for (std::size_t begin = 0; begin < left_.size();) {
      std::vector<std::string> fewer = left_;
      const std::size_t end = std::min(begin + size, left_.size());
      fewer.erase(fewer.begin() + static_cast<std::ptrdiff_t>(begin),
                  fewer.begin() + static_cast<std::ptrdiff_t>(end));
      if (FailsAlike(Joined(fewer))) {
        left_ = std::move(fewer);
      } else {
        begin = end;
      }
    }
    return left_.size() < before;
  }

  bool FailsAlike(const std::string& name) const {
    const Failure failure = FailureOf(name, entry_point_);
    return failure.kind == failure_.kind && failure.first_error == failure_.first_error &&
           std::includes(failure_.codes.begin(), failure_.codes.end(), failure.codes.begin(),
                         failure.codes.end());
  }

  const EntryPoint entry_point_;
  const Failure failure_;
  std::vector<std::string> left_;
};

}  // namespace

std::optional<std::string> Shrink(const std::string& resource_name, EntryPoint entry_point) {
  Shrinker shrinker(resource_name, entry_point);
  if (!shrinker.Fails()) return std::nullopt;
  return shrinker.Shrink();
}

}  // namespace kavrix::inspect
