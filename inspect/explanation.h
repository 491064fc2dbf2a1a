#ifndef KAVRIX_INSPECT_EXPLANATION_H_
#define KAVRIX_INSPECT_EXPLANATION_H_

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "descriptors/flat_members.h"

namespace kavrix::inspect {

// Bytes of a whole resource name, counted from 0; `end` is the first after them. Missing where a place is not
// known, because JsonCpp had to read the payload.
struct ByteRange {
  std::size_t begin = 0;
  std::size_t end = 0;
};

inline bool operator==(const ByteRange& a, const ByteRange& b) {
  return a.begin == b.begin && a.end == b.end;
}

enum class Origin {
  kName,      // bytes of the name
  kConfig,    // a style record of the configuration
  kContext,   // a value of the context
  kKind,      // a constant that the kind's parser writes
  kComputed,  // other keys
  kDefault,   // nothing: as in a new descriptor
};

// Where the value of one member came from.
struct ExplainedMember {
  FlatMember member;  // the path is "cameras[0].type", "own.scene" for one that hides a member of the base
  Origin from = Origin::kDefault;
  std::string key;                 // kName, kContext
  std::optional<ByteRange> bytes;  // kName
  std::string rule;                // "true when 0"; empty when the value was taken as it is
  std::string record;              // kConfig: "traffic_style"
  std::size_t number = 0;          // kConfig: the value's number, from 1; 0 for the record's name
  // kConfig: the keys that chose the record, then those that only chose the number.
  std::vector<std::string> chosen_by;
  std::vector<std::string> of;  // kComputed
};

// A key that is read and kept in no member.
struct ExplainedSteer {
  std::string key;
  std::optional<ByteRange> bytes;
};

struct IgnoredBytes {
  ByteRange bytes;
  std::string reason;
};

enum class Severity { kWarning, kError };

constexpr const char* SeverityName(Severity severity) {
  return severity == Severity::kError ? "error" : "warning";
}

// Something that is wrong with a name. An error is what makes its decode fail.
struct Problem {
  std::string code;  // "unknown-key"; docs/explain.md lists them
  Severity severity = Severity::kWarning;
  std::optional<ByteRange> bytes;
  std::string message;
  std::optional<std::string> suggestion;  // the nearest right thing, if one is near
};

// Why a bubble looks as it does.
struct Explanation {
  std::string resource_name;
  std::string kind;      // empty: none, or a marker name
  bool is_plain = true;  // false: JsonCpp had to read the payload, and not every place is known
  // All of the descriptor, in order; none when `out` was left untouched.
  std::vector<ExplainedMember> members;
  std::vector<ExplainedSteer> steers;
  std::vector<ByteRange> structure;  // prefix, separators, braces, the keys that were read, marker
  std::vector<IgnoredBytes> ignored;
  std::vector<Problem> problems;
  bool has_failed = false;  // the decode failed
};

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_EXPLANATION_H_
