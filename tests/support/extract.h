#ifndef KAVRIX_TESTS_SUPPORT_EXTRACT_H_
#define KAVRIX_TESTS_SUPPORT_EXTRACT_H_

#include <string>
#include <vector>

#include "inspect/name_extractor.h"

namespace kavrix::test {

using inspect::ExtractedName;
using inspect::LineError;
using inspect::LogLines;
using inspect::NameExtractor;

inline const std::string kPrefix = "kavrix://resource/";

// The beginning of a message of the library's own log, up to the name.
inline const std::string kOwn = "[Kavrix][main-map]resource_name:";

inline const std::string kEtaName = kPrefix + "Home_0_x_0@3.etaBubble";

struct Extracted {
  std::vector<std::string> names;   // each as "LINE:BYTE NAME"
  std::vector<std::string> errors;  // each as "LINE:BYTE EXPECTED"
};

inline Extracted ExtractWithPlaces(const std::string& text, LogLines lines = LogLines::kCountedText) {
  NameExtractor extractor(lines);
  std::vector<ExtractedName> names;
  std::vector<LineError> errors;
  extractor.Extract(text, names, errors);
  Extracted extracted;
  for (const ExtractedName& name : names) {
    extracted.names.push_back(std::to_string(name.line) + ":" + std::to_string(name.byte) + " " + name.name);
  }
  for (const LineError& line : errors) {
    extracted.errors.push_back(std::to_string(line.line) + ":" + std::to_string(line.error.at) + " " +
                               line.error.expected);
  }
  return extracted;
}

inline std::vector<std::string> Extract(const std::string& text, LogLines lines = LogLines::kText) {
  NameExtractor extractor(lines);
  std::vector<ExtractedName> names;
  std::vector<LineError> errors;
  extractor.Extract(text, names, errors);
  std::vector<std::string> texts;
  for (const ExtractedName& name : names) texts.push_back(name.name);
  return texts;
}

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_EXTRACT_H_
