#ifndef KAVRIX_INSPECT_SURVEY_H_
#define KAVRIX_INSPECT_SURVEY_H_

#include <array>
#include <cstdint>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>

#include "map_resource/bubble_kinds.h"

namespace kavrix::inspect {

// What a survey counts of one name.
struct SurveyedName {
  std::size_t kind = 0;                 // its place in the report
  bool failed = false;                  // the decode fails
  std::set<std::string> codes;          // of its problems
  std::set<std::string> style_records;  // of the configuration, that its descriptor takes values from
};

SurveyedName SurveyName(const std::string& resource_name, EntryPoint entry_point);

// A text is not a report that this version writes. The message has the place in the report and what was
// expected there.
class ReportError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// What is in a corpus of names. Neither the order of the names nor how they were divided into reports that
// were merged makes a difference, and its size does not grow with the number of names.
class SurveyReport {
 public:
  struct Kind {
    std::uint64_t names = 0;
    std::uint64_t failed = 0;
    std::map<std::string, std::uint64_t> problems;  // names that have them, by code
    std::map<std::string, std::uint64_t> styles;    // names that take values from them, by style record
    std::map<std::string, std::string> examples;    // by code: the least name by length, then by bytes
  };

  // The most names of a report: the greatest number that every reader of JSON keeps.
  static constexpr std::uint64_t kMostNames = std::uint64_t{1} << 53;

  // Reads what ToJsonLine wrote. Throws ReportError.
  static SurveyReport Read(std::string_view json);

  // Counts a name. Its bytes that are not UTF-8 become U+FFFD in examples.
  void Add(const std::string& resource_name, const SurveyedName& surveyed);
  // Throws ReportError, and changes nothing, when there would be more names than a report can count.
  void Merge(const SurveyReport& other);
  void DropExamples();

  std::uint64_t Names() const;
  std::uint64_t Failed() const;

  // One for each kind in the order of recognition, then "marker" for marker names, then "none" for names
  // without a marker.
  static constexpr std::size_t kKinds = kBubbleKinds.size() + 2;
  static std::string_view KindName(std::size_t place);
  const std::array<Kind, kKinds>& kinds() const { return kinds_; }

  // {"report": 1, "names": ..., "kinds": {...}} on one line, newline included. Kinds without names are left
  // out.
  std::string ToJsonLine() const;

 private:
  std::array<Kind, kKinds> kinds_;
};

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_SURVEY_H_
