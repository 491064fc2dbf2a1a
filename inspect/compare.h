#ifndef KAVRIX_INSPECT_COMPARE_H_
#define KAVRIX_INSPECT_COMPARE_H_

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "descriptors/flat_members.h"
#include "inspect/decoded_line.h"
#include "inspect/decoder.h"

namespace kavrix::inspect {

// Where a member stands among those of its kind: the place of its name in the descriptor, then of a list's
// member the place of its item and its own place in that. Does not depend on the lengths of lists.
using MemberOrder = std::tuple<std::size_t, std::size_t, std::size_t>;

// A member, or the kind or the exception, in which two results of decoding differ. The values are JSON,
// "null" for what one of them lacks.
struct Difference {
  std::string member;
  std::string old_value;
  std::string new_value;
  MemberOrder order;
  std::optional<FlatMember> old_member;  // none where one side lacks it, or where only JSON is known
  std::optional<FlatMember> new_member;
};

// Compares kind, members and exception, not log records.
std::vector<Difference> Compare(const Decoded& old_result, const Decoded& new_result);

// Bytes that are not UTF-8 are alike in such lines.
std::vector<Difference> Compare(const DecodedLine& old_line, const DecodedLine& new_line);

// {"resource_name": ..., "differs": [...]} on one line, newline included.
std::string DifferencesLine(const std::string& resource_name, const std::vector<Difference>& differences);
// {"resource_names": [...], "differs": [...]}
std::string DifferencesLine(const std::string& old_name, const std::string& new_name,
                            const std::vector<Difference>& differences);

// Counts differences by kind, member, old and new value. The result does not depend on the order of the
// names.
class DifferenceSummary {
 public:
  // `kind` is empty for names without one.
  void Add(std::string_view kind, const std::string& resource_name,
           const std::vector<Difference>& differences);

  // One JSON object a line: kinds in the order of recognition, members in order. The example is the shortest
  // name, the first by its bytes of those.
  std::string Lines() const;

 private:
  struct Group {
    std::size_t names = 0;
    std::string example;
  };
  // The place of the kind, that of the member, the member, old value, new value.
  using Key = std::tuple<std::size_t, MemberOrder, std::string, std::string, std::string>;

  std::map<Key, Group> groups_;
};

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_COMPARE_H_
