// Fuzzes the search for names in texts: the first byte of the input picks the sort of lines, the rest is the
// text.

#include "fuzz/fuzzing.h"
#include "inspect/name_extractor.h"
#include "map_resource/map_resource_manager.h"

namespace kavrix::fuzz {
namespace {

using inspect::ExtractedName;
using inspect::LineError;
using inspect::LogLines;
using inspect::NameExtractor;

// Names are found in order, do not overlap, begin with the prefix and stand in the text.
void RequireInText(std::string_view text, const std::vector<ExtractedName>& names) {
  std::size_t line = 1;
  std::size_t least_byte = 0;
  for (const ExtractedName& name : names) {
    Require(name.name.rfind(MapResourceManager::kavrix_resource_prefix, 0) == 0,
            "a name begins with the prefix");
    if (name.line != line) least_byte = 0;
    for (; line < name.line; ++line) text.remove_prefix(text.find('\n') + 1);
    Require(name.line == line && name.byte >= least_byte, "names come in order and do not overlap");
    const std::string_view here = text.substr(0, text.find('\n'));
    const bool is_escaped = here.find('\\') != std::string_view::npos;
    Require(is_escaped || here.substr(name.byte, name.name.size()) == name.name,
            "a name stands where it is said to");
    least_byte = name.byte + (is_escaped ? 0 : name.name.size());
  }
}

std::vector<ExtractedName> ExtractByLines(std::string_view text, LogLines lines) {
  NameExtractor extractor(lines);
  std::vector<ExtractedName> names;
  std::vector<LineError> errors;
  while (!text.empty()) {
    const std::size_t size = std::min(text.find('\n'), text.size() - 1) + 1;
    extractor.Extract(text.substr(0, size), names, errors);
    text.remove_prefix(size);
  }
  return names;
}

}  // namespace
}  // namespace kavrix::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kavrix;
  if (size == 0) return -1;
  const auto lines = *data % 2 == 0 ? inspect::LogLines::kCountedText : inspect::LogLines::kJson;
  const std::string_view text = fuzz::AsText(data + 1, size - 1);
  inspect::NameExtractor extractor(lines);
  std::vector<inspect::ExtractedName> names;
  std::vector<inspect::LineError> errors;
  extractor.Extract(text, names, errors);
  if (lines == inspect::LogLines::kCountedText) fuzz::RequireInText(text, names);
  const std::vector<inspect::ExtractedName> again = fuzz::ExtractByLines(text, lines);
  fuzz::Require(again.size() == names.size(), "blocks of lines make no difference");
  for (std::size_t i = 0; i < names.size(); ++i) {
    fuzz::Require(
        again[i].name == names[i].name && again[i].line == names[i].line && again[i].byte == names[i].byte,
        "blocks of lines make no difference");
  }
  return 0;
}
