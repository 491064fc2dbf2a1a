#ifndef KAVRIX_INSPECT_EXPLANATION_H_
#define KAVRIX_INSPECT_EXPLANATION_H_

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "descriptors/flat_members.h"

/// Says why a name decodes as it does, and draws what it decodes to. A library of its own, the CMake target
/// kavrix::inspect, which comes with a static build.
namespace kavrix::inspect {

/// Bytes of a whole resource name, counted from 0. Missing where a place is not known, because JsonCpp had to
/// read the payload.
struct ByteRange {
  std::size_t begin = 0;  ///< The first byte.
  std::size_t end = 0;    ///< The first byte after them.
};

/// Returns true when both are the same bytes.
inline bool operator==(const ByteRange& a, const ByteRange& b) {
  return a.begin == b.begin && a.end == b.end;
}

/// Where a value came from.
enum class Origin {
  kName,      ///< Bytes of the name.
  kConfig,    ///< A style record of the configuration.
  kContext,   ///< A value of the context.
  kKind,      ///< A constant that the kind's parser writes.
  kComputed,  ///< Other keys.
  kDefault,   ///< Nothing: as in a new descriptor.
};

/// Where the value of one member came from.
struct ExplainedMember {
  FlatMember member;  ///< The path is "cameras[0].type", or "own.scene" when it hides the base's.
  Origin from = Origin::kDefault;  ///< Says which of the following are filled.
  std::string key;                 ///< kName: the key or field. kContext: the context's member.
  std::optional<ByteRange> bytes;  ///< kName: the value, a string's without its quotes.
  std::string rule;                ///< "true when 0"; empty when the value was taken as it is.
  std::string record;              ///< kConfig: the style record's member name, "traffic_style".
  std::size_t number = 0;          ///< kConfig: the value's number, from 1; 0 for the record's name.
  /// kConfig: the keys that chose the record, then those that only chose the number.
  std::vector<std::string> chosen_by;
  std::vector<std::string> of;  ///< kComputed: the keys that the value is made of.
};

/// A key that is read and kept in no member.
struct ExplainedSteer {
  std::string key;                 ///< The key: "nav_mode".
  std::optional<ByteRange> bytes;  ///< Its value.
};

/// Bytes that nothing reads.
struct IgnoredBytes {
  ByteRange bytes;     ///< Where they stand.
  std::string reason;  ///< Why nothing reads them, in words.
};

/// How bad a problem is.
enum class Severity {
  kWarning,  ///< The decode goes on, but may not give what was meant.
  kError,    ///< Makes the decode fail.
};

/// Returns "warning" or "error".
constexpr const char* SeverityName(Severity severity) {
  return severity == Severity::kError ? "error" : "warning";
}

/// Something that is wrong with a name.
struct Problem {
  std::string code;                        ///< "unknown-key"; docs/explain.md lists them.
  Severity severity = Severity::kWarning;  ///< Whether the decode fails because of it.
  std::optional<ByteRange> bytes;          ///< The bytes to blame.
  std::string message;                     ///< What is wrong, in words.
  std::optional<std::string> suggestion;   ///< The nearest right thing, if one is near.
};

/// Why a bubble looks as it does.
struct Explanation {
  std::string resource_name;  ///< The name as it was given.
  std::string kind;           ///< "trafficBubble"; empty: none, or a marker name.
  bool is_plain = true;       ///< False: JsonCpp had to read the payload, and not every place is known.
  /// All of the descriptor, in order; none when `out` was left untouched.
  std::vector<ExplainedMember> members;
  std::vector<ExplainedSteer> steers;  ///< The keys that are read and kept in no member.
  std::vector<ByteRange> structure;    ///< Prefix, separators, braces, the keys that were read, marker.
  std::vector<IgnoredBytes> ignored;   ///< What nothing reads.
  std::vector<Problem> problems;       ///< All problems of the name, by their first byte, then by code.
  bool has_failed = false;             ///< The decode failed.
};

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_EXPLANATION_H_
