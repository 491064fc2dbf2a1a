#include "inspect/picture_content.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "inspect/text_width.h"

namespace kavrix::inspect {
namespace {

constexpr int kLeastWidth = 224;
constexpr int kMostWidth = 384;
constexpr int kGap = 6;
constexpr Letters kTitle = {18, true};
constexpr Letters kLine = {13};
constexpr Letters kProblem = {12};
constexpr Letters kSmall = {11};
constexpr Letters kCount = {10};
constexpr std::size_t kTitleLines = 2;
constexpr std::size_t kProblemLines = 4;

// Breaks a text at blanks, or between characters where it has none, into at most `lines`; the last is cut.
// Blanks at a break belong to the line before it, up to a few.
std::vector<std::string> Wrapped(std::string_view text, Letters letters, int width, std::size_t lines) {
  constexpr std::size_t kMostBlanks = 8;
  std::vector<std::string> wrapped;
  while (wrapped.size() + 1 < lines) {
    const std::size_t fitting = FittingLength(text, letters, width);
    if (fitting == text.size()) break;
    const std::size_t blank = text.rfind(' ', fitting);
    std::size_t length = blank == std::string_view::npos || blank < fitting / 2 ? fitting : blank;
    for (std::size_t i = 0; i < kMostBlanks && length < text.size() && text[length] == ' '; ++i) ++length;
    wrapped.emplace_back(text.substr(0, length));
    text.remove_prefix(length);
  }
  wrapped.push_back(CutText(text, letters, width));
  return wrapped;
}

std::string_view WithoutBlanksAtEnd(std::string_view line) {
  return line.substr(0, line.find_last_not_of(' ') + 1);
}

std::string More(std::size_t count) { return '+' + std::to_string(count); }

// The parts of a callout, drawn below each other. Each takes the room down to y_, and then a gap.
class Column {
 public:
  Column(const PictureParts& parts, const std::string& problem, const Palette& palette)
      : parts_(parts), palette_(palette), canvas_(palette) {
    WrapTexts(problem);
    Title();
    Lines();
    Lights();
    Cameras();
    Lane();
    Flow(parts.chips, PictureCanvas::kChipHeight, PictureCanvas::ChipWidth,
         [&](int x, int y, const PictureText& text) { canvas_.Chip(x, y, text); });
    Flow(
        parts.colours, PictureCanvas::kColourHeight,
        [](std::uint32_t) { return PictureCanvas::kColourWidth; },
        [&](int x, int y, std::uint32_t word) { canvas_.Colour(x, y, word); });
    Problem();
  }

  PictureContent Take() { return {canvas_.xml().Take(), std::max(width_, kLeastWidth), y_ - kGap}; }

 private:
  void WrapTexts(const std::string& problem) {
    if (!problem.empty()) problem_ = Wrapped(problem, kProblem, kMostWidth, kProblemLines);
    if (!parts_.title) return;
    const int around = TextWidth(parts_.title->before, kTitle) + Indent();
    title_ = Wrapped(parts_.title->value, kTitle, kMostWidth - around, kTitleLines);
  }

  int Indent() const { return parts_.has_icon ? PictureCanvas::kImageWidth : 0; }

  void Widen(int right) { width_ = std::max(width_, std::min(right, kMostWidth)); }

  void Title() {
    const int left = Indent();
    if (parts_.has_icon) canvas_.Image(0, y_ + 2);
    if (title_.empty()) {
      const bool says_more =
          !parts_.lights.shown.empty() || !parts_.cameras.shown.empty() || parts_.lane != 0;
      if (says_more && !parts_.has_icon) return;
      canvas_.Text(left, y_ + 16, kMostWidth, "no text", {kLine, palette_.muted});
      y_ += kTitle.size + kGap;
      return;
    }
    const PictureText& title = *parts_.title;
    XmlWriter& xml = canvas_.xml();
    xml.Begin("text").With("font-size", kTitle.size).With("font-weight", "bold").With("fill", palette_.text);
    xml.With("y", y_ + kTitle.size - 1).With("x", left).Text(title.before).Begin("tspan");
    if (!title.path.empty()) xml.With("data-member", title.path);
    for (const std::string& line : title_) {
      const bool is_first = &line == &title_.front();
      if (!is_first) xml.Begin("tspan").With("x", left).With("y", y_ + kTitle.size - 1);
      xml.Text(line);
      if (!is_first) xml.End();
      Widen(left + (is_first ? TextWidth(title.before, kTitle) : 0) +
            TextWidth(WithoutBlanksAtEnd(line), kTitle));
      y_ += kTitle.size + kGap;
    }
    xml.End().End();
    y_ += 2;
  }

  void Lines() {
    for (const PictureText& line : parts_.lines.shown) {
      Widen(canvas_.Text(0, y_ + 13, kMostWidth, line, {kLine}));
      y_ += 19;
    }
    if (parts_.lines.left_out == 0) return;
    canvas_.Text(0, y_ + 13, kMostWidth, More(parts_.lines.left_out), {kLine, palette_.muted});
    y_ += 19;
  }

  void Lights() {
    if (!parts_.lines.shown.empty()) y_ += 4;
    int x = 0;
    int height = 0;
    for (const PictureLight& light : parts_.lights.shown) {
      canvas_.Light(x, y_, light);
      height = std::max(height, PictureCanvas::HeightOf(light));
      x += PictureCanvas::kLightWidth;
    }
    EndCells(x, height, parts_.lights.left_out);
  }

  void Cameras() {
    int x = 0;
    for (const PictureCamera& camera : parts_.cameras.shown) {
      canvas_.Camera(x, y_, camera);
      x += PictureCanvas::kCameraWidth;
    }
    EndCells(x, PictureCanvas::kCameraHeight, parts_.cameras.left_out);
  }

  // Ends a row of cells with the number of those left out.
  void EndCells(int x, int height, std::size_t left_out) {
    if (x == 0) return;
    if (left_out != 0) {
      x += 4;
      x += canvas_.Text(x, y_ + 26, kMostWidth - x, More(left_out), {kCount, palette_.muted});
    }
    Widen(x);
    y_ += height + kGap;
  }

  void Lane() {
    if (parts_.lane == 0) return;
    if (parts_.lane > 0 && parts_.lane <= PictureCanvas::kMostLanes) {
      const int target = static_cast<int>(parts_.lane);
      canvas_.Lanes(0, y_, target);
      Widen(PictureCanvas::LanesWidth(target));
      y_ += PictureCanvas::kLanesHeight + 2;
    }
    const std::string text = "to lane " + std::to_string(parts_.lane);
    Widen(canvas_.Text(0, y_ + 12, kMostWidth, text, {kSmall, palette_.muted}));
    y_ += 16 + kGap;
  }

  // Places parts beside each other, and below where there is no more room.
  template <class Few, class WidthOf, class Draw>
  void Flow(const Few& few, int height, WidthOf width_of, Draw draw) {
    if (few.shown.empty()) return;
    int x = 0;
    const auto make_room = [&](int width) {
      if (x != 0 && x + width > kMostWidth) {
        x = 0;
        y_ += height + 4;
      }
      Widen(x + width);
    };
    for (const auto& part : few.shown) {
      const int width = width_of(part);
      make_room(width);
      draw(x, y_, part);
      x += width + kGap;
    }
    if (few.left_out != 0) {
      const PictureText more = {"", "", More(few.left_out)};
      make_room(PictureCanvas::ChipWidth(more));
      canvas_.Chip(x, y_, more);
    }
    y_ += height + kGap;
  }

  void Problem() {
    if (problem_.empty()) return;
    for (const std::string& line : problem_) {
      Widen(canvas_.Text(0, y_ + 12, kMostWidth, WithoutBlanksAtEnd(line), {kProblem, palette_.problem}));
      y_ += 16;
    }
    y_ += kGap;
  }

  const PictureParts& parts_;
  const Palette& palette_;
  PictureCanvas canvas_;
  std::vector<std::string> title_;
  std::vector<std::string> problem_;
  int width_ = 0;
  int y_ = 0;
};

}  // namespace

PictureContent DrawContent(const PictureParts& parts, const std::string& problem, const Palette& palette) {
  return Column(parts, problem, palette).Take();
}

}  // namespace kavrix::inspect
