#include "inspect/name_extractor.h"

#include <algorithm>
#include <utility>

#include "inspect/json_texts.h"
#include "inspect/name_end.h"
#include "inspect/text_search.h"
#include "map_resource/map_resource_manager.h"

namespace kavrix::inspect {
namespace {

constexpr std::size_t kNone = std::string_view::npos;

std::size_t NewlinesIn(std::string_view text) {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

// The end of the line that holds `at`: its newline, or the end of the text.
std::size_t LineEnd(std::string_view text, std::size_t at) {
  return std::min(text.find('\n', at), text.size());
}

std::string_view WithoutReturn(std::string_view line) {
  if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
  return line;
}

}  // namespace

// One line of the text, without its end.
struct NameExtractor::Line {
  std::string_view text;
  std::size_t number;
  std::size_t begin;  // in the whole log, as is the next
  std::size_t end;    // of its newline
};

NameExtractor::NameExtractor(LogLines lines)
    : prefix_(MapResourceManager::kavrix_resource_prefix), format_(lines) {}

void NameExtractor::Extract(std::string_view lines, std::vector<ExtractedName>& names,
                            std::vector<LineError>& errors) {
  names_ = &names;
  errors_ = &errors;
  format_ == LogLines::kJson ? ExtractJson(lines) : ExtractText(lines);
  bytes_before_ += lines.size();
  const std::size_t last_newline = lines.rfind('\n');
  if (last_newline != kNone) line_begin_ = bytes_before_ - (lines.size() - last_newline - 1);
}

// Looks only at lines that hold the prefix.
void NameExtractor::ExtractText(std::string_view lines) {
  const bool counts = format_ == LogLines::kCountedText;
  std::size_t counted = 0;  // bytes whose newlines are in lines_before_
  for (std::size_t at = FindWord(lines, prefix_, 0); at != kNone;) {
    const std::size_t newline = lines.rfind('\n', at);
    const std::size_t begin = newline == kNone ? 0 : newline + 1;
    const std::size_t end = LineEnd(lines, at);
    if (counts) lines_before_ += NewlinesIn(lines.substr(counted, begin - counted));
    counted = begin;
    const std::string_view text = WithoutReturn(lines.substr(begin, end - begin));
    const Line line = {text, counts ? lines_before_ + 1 : 0, bytes_before_ + begin, bytes_before_ + end};
    const std::size_t cut = BytesCutOff(begin);
    ExtractLine(text, at - begin, line, [cut](std::size_t place) { return cut + place; });
    at = end == lines.size() ? kNone : FindWord(lines, prefix_, end + 1);
  }
  if (counts) lines_before_ += NewlinesIn(lines.substr(counted));
}

void NameExtractor::ExtractJson(std::string_view lines) {
  for (std::size_t begin = 0; begin < lines.size();) {
    const std::size_t end = LineEnd(lines, begin);
    ExtractJsonLine({WithoutReturn(lines.substr(begin, end - begin)), lines_before_ + 1,
                     bytes_before_ + begin, bytes_before_ + end},
                    BytesCutOff(begin));
    if (end < lines.size()) ++lines_before_;
    begin = end + 1;
  }
}

// How many bytes of the line that begins at `begin` of a block came with the blocks before.
std::size_t NameExtractor::BytesCutOff(std::size_t begin) const {
  return begin == 0 ? bytes_before_ - line_begin_ : 0;
}

// A text of several lines holds names as those lines would.
void NameExtractor::ExtractJsonLine(const Line& line, std::size_t cut) {
  if (auto error = FindErrorInJsonLine(line.text)) {
    error->at += cut;
    errors_->push_back({line.number, *error});
  }
  for (JsonTexts texts(line.text); texts.Next();) {
    const std::string_view text = texts.text();
    for (std::size_t begin = 0; begin < text.size();) {
      const std::size_t end = LineEnd(text, begin);
      const std::string_view part = WithoutReturn(text.substr(begin, end - begin));
      const Line part_line = {part, line.number, line.begin + begin,
                              end == text.size() ? line.end : line.begin + end};
      const std::size_t first = FindWord(part, prefix_, 0);
      const auto place_of = [&](std::size_t place) { return cut + texts.PlaceOf(begin + place); };
      if (first != kNone) ExtractLine(part, first, part_line, place_of);
      begin = end + 1;
    }
  }
}

// `text` is the line or a part of it, `first` the first prefix in it; `place_of` gives a byte's place in the
// line.
template <class PlaceOf>
void NameExtractor::ExtractLine(std::string_view text, std::size_t first, const Line& line,
                                PlaceOf place_of) {
  const std::optional<OwnLine> own = ReadOwnLine(text, first);
  if (own) {
    std::string name;
    if (ExtractRequest(text, *own, line, name)) {
      names_->push_back({std::move(name), line.number, place_of(*own->name_begin)});
    }
    return;
  }
  NameEnds ends(text, prefix_);
  for (std::size_t begin = first; begin != kNone;) {
    const std::size_t end = ends.EndOf(begin);
    names_->push_back({std::string(text.substr(begin, end - begin)), line.number, place_of(begin)});
    begin = FindWord(text, prefix_, end);
  }
}

// Reads the name of a request. False when the line holds none that counts.
bool NameExtractor::ExtractRequest(std::string_view text, const OwnLine& own, const Line& line,
                                   std::string& name) {
  if (!own.name_begin || !StartsWith(text.substr(*own.name_begin), prefix_)) return false;
  std::string_view rest = text.substr(*own.name_begin);
  std::string unescaped;
  if (own.is_escaped && rest.find('\\') != kNone) {
    unescaped = WithoutEscapes(rest);
    rest = unescaped;
  }
  const std::size_t end = NameEnds(rest, prefix_).EndOf(0);
  name = rest.substr(0, end);
  const bool is_told_not_valid = EndsWith(rest, kNotValidTail);
  return !requests_.Repeats(own, name, is_told_not_valid, line.begin, line.end);
}

}  // namespace kavrix::inspect
