#include "tools/explained_text.h"

#include <fmt/color.h>
#include <fmt/format.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>
#include <vector>

#include "inspect/display_width.h"
#include "tools/text_output.h"
#include "util/utf8.h"

namespace kavrix::tools {
namespace {

using inspect::ByteRange;
using inspect::DisplayWidth;
using inspect::ExplainedMember;
using inspect::Explanation;
using inspect::Origin;
using inspect::Padded;

constexpr char kMemberMark = '~';
constexpr char kSteerMark = '-';
constexpr char kIgnoredMark = 'x';
constexpr char kProblemMark = '^';

// One character of a name as it is shown.
struct Shown {
  std::size_t begin;  // its first byte in the name
  std::string text;
  std::size_t width;
};

std::vector<Shown> ShownCharacters(std::string_view name) {
  std::vector<Shown> shown;
  for (std::size_t at = 0; at < name.size();) {
    const std::size_t length = NextUtf8(name.substr(at)).length;
    std::string text = Printable(name.substr(at, length));
    const std::size_t width = DisplayWidth(text);
    shown.push_back({at, std::move(text), width});
    at += length;
  }
  return shown;
}

// A name, or a piece of it, over a line of marks.
struct MarkedLine {
  std::string text;
  std::string marks;
};

// Shows as much of a name as fits `width`, with the bytes at `focus` in it. `mark_of` gives the mark of a
// character by its first byte.
template <class MarkOf>
MarkedLine Mark(const std::string& name, std::size_t focus, std::size_t width, MarkOf mark_of) {
  constexpr std::string_view kCut = "...";
  const std::vector<Shown> shown = ShownCharacters(name);
  std::size_t total = 1;  // a mark may stand after the last character
  for (const Shown& character : shown) total += character.width;
  std::size_t first = 0;
  MarkedLine line;
  if (total > width) {
    // The focus stands after a third of the line.
    std::size_t before = width / 3;
    first = shown.size();
    while (first > 0 && shown[first - 1].begin >= focus) --first;
    while (first > 0 && shown[first - 1].width <= before) before -= shown[--first].width;
    if (first > 0) line = {std::string(kCut), std::string(kCut.size(), ' ')};
  }
  std::size_t left = width - std::min(width, 2 * kCut.size());
  for (std::size_t i = first; i < shown.size(); ++i) {
    if (total > width && shown[i].width > left) {
      line.text += kCut;
      return line;
    }
    left -= std::min(left, shown[i].width);
    line.text += shown[i].text;
    line.marks += std::string(shown[i].width, mark_of(shown[i].begin));
  }
  if (mark_of(name.size()) != ' ') line.marks += mark_of(name.size());
  return line;
}

bool Contains(const ByteRange& range, std::size_t byte) { return range.begin <= byte && byte < range.end; }

std::string RangeText(const std::optional<ByteRange>& bytes) {
  return bytes ? fmt::format("{}..{}", bytes->begin, bytes->end) : "at an unknown place";
}

std::string PlaceOf(const ExplainedMember& explained) {
  switch (explained.from) {
    case Origin::kName:
      return fmt::format("name {}, {}", RangeText(explained.bytes), explained.key);
    case Origin::kConfig:
      return explained.number == 0 ? explained.record + ", its name"
                                   : fmt::format("{}, value {}", explained.record, explained.number);
    case Origin::kContext:
      return "context, " + explained.key;
    case Origin::kKind:
      return "the kind";
    case Origin::kComputed:
      return explained.of.empty() ? "computed" : fmt::format("computed of {}", fmt::join(explained.of, ", "));
    case Origin::kDefault:
      return "default";
  }
  return "";
}

std::string RuleOf(const ExplainedMember& explained) {
  if (explained.chosen_by.empty()) return explained.rule;
  return fmt::format("chosen by {}", fmt::join(explained.chosen_by, ", "));
}

// The beginning of a text that fits `width` columns, with "..." where something is missing.
std::string Cut(const std::string& text, std::size_t width) {
  if (DisplayWidth(text) <= width) return text;
  constexpr std::size_t kDots = 3;
  return text.substr(0, inspect::FittingLength(text, std::max(width, kDots) - kDots)) + "...";
}

class ExplanationText {
 public:
  ExplanationText(const Explanation& explanation, const ExplainedTextOptions& options)
      : explanation_(explanation), options_(options) {}

  std::string Write() {
    WriteName();
    text_ += fmt::format("  kind  {}\n", explanation_.kind.empty() ? "none" : explanation_.kind);
    if (!explanation_.is_plain) {
      text_ +=
          "  the payload is not plain JSON: JsonCpp reads it. The places of its keys are not\n"
          "  known, and that a key stands there twice is not seen.\n";
    }
    WriteMembers();
    for (const inspect::ExplainedSteer& steer : explanation_.steers) {
      text_ += fmt::format("  {} only steers, name {}\n", steer.key, RangeText(steer.bytes));
    }
    for (const inspect::IgnoredBytes& ignored : explanation_.ignored) {
      text_ += fmt::format("  {} ignored: {}\n", RangeText(ignored.bytes), ignored.reason);
    }
    for (const inspect::Problem& problem : explanation_.problems) WriteProblem(problem);
    return std::move(text_);
  }

 private:
  std::string Styled(const fmt::text_style& style, const std::string& text) const {
    return options_.colour ? fmt::format(style, "{}", text) : text;
  }

  // The marks stand under a name that fits the width.
  void WriteName() {
    const std::string& name = explanation_.resource_name;
    const std::string printable = Printable(name);
    text_ += Styled(fmt::emphasis::bold, printable) + "\n";
    if (DisplayWidth(printable) >= options_.width) return;
    std::string marks = Mark(name, 0, options_.width, [&](std::size_t byte) { return MarkOf(byte); }).marks;
    marks.erase(marks.find_last_not_of(' ') + 1);
    if (!marks.empty()) text_ += Styled(fmt::emphasis::faint, marks) + "\n";
  }

  char MarkOf(std::size_t byte) const {
    const auto has_byte = [&](const auto& entry) { return entry.bytes && Contains(*entry.bytes, byte); };
    const auto& steers = explanation_.steers;
    if (std::any_of(steers.begin(), steers.end(), has_byte)) return kSteerMark;
    for (const inspect::IgnoredBytes& ignored : explanation_.ignored) {
      if (Contains(ignored.bytes, byte)) return kIgnoredMark;
    }
    for (const ByteRange& structure : explanation_.structure) {
      if (Contains(structure, byte)) return ' ';
    }
    const auto& members = explanation_.members;
    return std::any_of(members.begin(), members.end(), has_byte) ? kMemberMark : ' ';
  }

  void WriteMembers() {
    std::vector<std::array<std::string, 4>> rows;
    std::array<std::size_t, 4> widths = {};
    for (const ExplainedMember& explained : explanation_.members) {
      const bool is_untouched = explained.from == Origin::kDefault && explained.rule.empty();
      if (is_untouched && !options_.all_members) continue;
      rows.push_back(
          {explained.member.path, ShownValue(explained.member), PlaceOf(explained), RuleOf(explained)});
      for (std::size_t i = 0; i < widths.size(); ++i) {
        widths[i] = std::max(widths[i], DisplayWidth(rows.back()[i]));
      }
    }
    constexpr std::size_t kLeastValue = 12;
    const std::size_t others = widths[0] + widths[2] + widths[3] + 10;  // and the blanks between
    const std::size_t room = std::max(options_.width - std::min(options_.width, others), kLeastValue);
    widths[1] = std::min(widths[1], room);
    if (explanation_.members.empty()) text_ += "  no descriptor\n";
    for (const auto& [path, value, place, rule] : rows) {
      std::string line =
          fmt::format("    {}  {}  {}  {}", Padded(path, widths[0]), Padded(Cut(value, widths[1]), widths[1]),
                      Padded(place, widths[2]), rule);
      line.erase(line.find_last_not_of(' ') + 1);
      text_ += line + "\n";
    }
  }

  void WriteProblem(const inspect::Problem& problem) {
    const bool is_error = problem.severity == inspect::Severity::kError;
    const auto style =
        fmt::emphasis::bold | fmt::fg(is_error ? fmt::terminal_color::red : fmt::terminal_color::yellow);
    const std::string head = fmt::format("{}[{}]", inspect::SeverityName(problem.severity), problem.code);
    text_ += fmt::format("{}: {}\n", Styled(style, head), Printable(problem.message));
    if (problem.bytes) WriteSnippet(*problem.bytes, style);
    if (problem.suggestion)
      text_ += fmt::format("  = did you mean \"{}\"?\n", Printable(*problem.suggestion));
  }

  void WriteSnippet(const ByteRange& bytes, const fmt::text_style& style) {
    const auto mark_of = [&](std::size_t byte) {
      const bool is_marked = Contains(bytes, byte) || (bytes.begin == bytes.end && byte == bytes.begin);
      return is_marked ? kProblemMark : ' ';
    };
    constexpr std::size_t kMargin = 4;
    const std::size_t width = std::max(options_.width, 2 * kMargin + 20) - kMargin;
    const MarkedLine line = Mark(explanation_.resource_name, bytes.begin, width, mark_of);
    const std::size_t end = line.marks.find_last_not_of(' ') + 1;
    const std::size_t begin = std::min(line.marks.find(kProblemMark), end);
    text_ += fmt::format("  --> byte {}\n  | {}\n  | {}{}\n", bytes.begin, line.text, std::string(begin, ' '),
                         Styled(style, line.marks.substr(begin, end - begin)));
  }

  const Explanation& explanation_;
  const ExplainedTextOptions& options_;
  std::string text_;
};

}  // namespace

std::size_t TerminalWidth() {
  constexpr std::size_t kUsual = 100;
  winsize size = {};
  const bool is_known = ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
  return is_known ? size.ws_col : kUsual;
}

std::string ToText(const Explanation& explanation, const ExplainedTextOptions& options) {
  return ExplanationText(explanation, options).Write() + "\n";
}

}  // namespace kavrix::tools
