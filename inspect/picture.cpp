#include "inspect/picture.h"

#include "inspect/members.h"
#include "inspect/picture_canvas.h"
#include "inspect/picture_content.h"
#include "inspect/picture_parts.h"
#include "inspect/text_width.h"

namespace kavrix::inspect {
namespace {

constexpr int kMargin = 24;  // around the callout; the pointer is in it
constexpr int kPadding = 18;
constexpr int kCaptionLeft = 10;
constexpr int kCaptionHeight = 14;
constexpr Letters kCaption = {10};

std::string CutForReaders(std::string_view text) { return CutText(text, {}, 600); }

enum class Side { kNone, kLeft, kRight, kTop, kBottom };

Side SideOf(std::int64_t direction) {
  if (direction == 1) return Side::kLeft;
  if (direction == 2) return Side::kRight;
  if (direction == 3) return Side::kTop;
  return Side::kBottom;
}

const char* NameOf(Side side) {
  switch (side) {
    case Side::kNone:
      return "nowhere";
    case Side::kLeft:
      return "left";
    case Side::kRight:
      return "right";
    case Side::kTop:
      return "up";
    case Side::kBottom:
      return "down";
  }
  return "";
}

// The outline of a callout: a box with round corners and a pointer in the middle of one side.
std::string Outline(int width, int height, Side side) {
  const auto n = [](int number) { return ' ' + std::to_string(number); };
  const int left = kMargin;
  const int top = kMargin;
  const int right = left + width;
  const int bottom = top + height;
  const int across = left + width / 2;
  const int down = top + height / 2;
  std::string path = "M" + n(left + 12) + n(top);
  if (side == Side::kTop) path += "H" + n(across - 9) + "l9-15l9 15";
  path += "H" + n(right - 12) + "a12 12 0 0 1 12 12";
  if (side == Side::kRight) path += "V" + n(down - 9) + "l15 9l-15 9";
  path += "V" + n(bottom - 12) + "a12 12 0 0 1-12 12";
  if (side == Side::kBottom) path += "H" + n(across + 9) + "l-9 15l-9-15";
  path += "H" + n(left + 12) + "a12 12 0 0 1-12-12";
  if (side == Side::kLeft) path += "V" + n(down + 9) + "l-15-9l15-9";
  return path + "V" + n(top + 12) + "a12 12 0 0 1 12-12Z";
}

class Drawing {
 public:
  Drawing(const PictureParts& parts, const PictureOptions& options, bool is_day, Side side)
      : parts_(parts),
        options_(options),
        side_(side),
        palette_(PaletteOf(is_day)),
        mode_(Mode(is_day)),
        content_(DrawContent(parts, options.problem, palette_)),
        width_(content_.width + 2 * kPadding),
        height_(content_.height + 2 * kPadding),
        canvas_(palette_) {}

  std::string Draw() {
    Begin();
    Callout();
    BelowCallout();
    return canvas_.xml().End().Take();
  }

 private:
  static constexpr int kBelowCallout = 2 * kMargin + 8;

  // A name that fails may not have told its mode.
  std::string Mode(bool is_day) const {
    if (side_ == Side::kNone) return "nothing drawn";
    const std::string drawn = is_day ? "day" : "night";
    return options_.problem.empty() ? drawn : "mode not known, drawn as " + drawn;
  }

  std::string Pointer() const {
    return std::string("points ") + NameOf(side_) + " (direction " + std::to_string(parts_.direction) + ')';
  }

  bool HasStyle() const { return !parts_.style_name.empty(); }
  int FullWidth() const { return width_ + 2 * kMargin; }

  void Begin() {
    const int full_height = height_ + kBelowCallout + (HasStyle() ? 3 : 2) * kCaptionHeight - 4;
    XmlWriter& xml = canvas_.xml();
    xml.Begin("svg").With("xmlns", "http://www.w3.org/2000/svg").With("role", "img");
    xml.With("xml:space", "preserve").With("font-family", PictureFonts());
    xml.With("width", FullWidth()).With("height", full_height);
    xml.With("viewBox", "0 0 " + std::to_string(FullWidth()) + ' ' + std::to_string(full_height));
    const std::string title = parts_.title ? ": " + CutForReaders(parts_.title->value) : "";
    const std::string mode = side_ == Side::kNone ? "" : ", " + mode_;
    xml.Element("title", CutForReaders(options_.kind) + title + mode);
    xml.Element("desc", Description());
    canvas_.Rect(0, 0, FullWidth(), full_height, 8, palette_.map);
  }

  void Callout() {
    XmlWriter& xml = canvas_.xml();
    xml.Begin("path").With("d", Outline(width_, height_, side_)).With("fill", palette_.callout);
    xml.With("stroke", palette_.border).With("stroke-width", 2).With("data-pointer", NameOf(side_));
    if (side_ == Side::kNone) xml.With("stroke-dasharray", "6 5");
    xml.End();
    if (!parts_.colours.shown.empty()) {
      canvas_.Bar(kMargin + 8, kMargin + 16, height_ - 32, parts_.colours.shown.front());
    }
    // An inner picture clips what is wider than it should be.
    xml.Begin("svg").With("x", kMargin + kPadding).With("y", kMargin + kPadding);
    xml.With("width", content_.width).With("height", content_.height).Markup(content_.svg).End();
  }

  void BelowCallout() {
    int baseline = height_ + kBelowCallout - 2;
    const auto add = [&](const PictureText& text) {
      canvas_.Text(kCaptionLeft, baseline, FullWidth() - 2 * kCaptionLeft, text, {kCaption, palette_.muted});
      baseline += kCaptionHeight;
    };
    add({"", "", "schematic, " + mode_});
    if (side_ != Side::kNone) add({"", "", Pointer()});
    if (HasStyle()) add({"style_name", "style ", parts_.style_name});
  }

  // Says in words what the picture shows.
  std::string Description() const {
    std::string text = "schematic, " + mode_ + (side_ == Side::kNone ? "." : ", " + Pointer() + '.');
    const auto add = [&](const PictureText& part) {
      text += ' ' + part.before + CutForReaders(part.value) + '.';
    };
    if (parts_.title) add(*parts_.title);
    for (const PictureText& line : parts_.lines.shown) add(line);
    for (const PictureLight& light : parts_.lights.shown) {
      text += " Light of phase " + std::to_string(light.phase) + ": " + std::to_string(light.seconds);
      if (light.total_seconds > 0) text += " of " + std::to_string(light.total_seconds);
      text += " s";
      if (light.arrow > 0) text += ", arrow " + std::to_string(light.arrow);
      text += '.';
    }
    for (const PictureCamera& camera : parts_.cameras.shown) {
      text += " Camera of type " + std::to_string(camera.type) + ": " + std::to_string(camera.speed) + '.';
    }
    if (parts_.lane != 0) text += " To lane " + std::to_string(parts_.lane) + '.';
    for (const PictureText& chip : parts_.chips.shown) add(chip);
    if (!options_.problem.empty()) add({"", "Problem: ", options_.problem});
    return text;
  }

  const PictureParts& parts_;
  const PictureOptions& options_;
  const Side side_;
  const Palette& palette_;
  const std::string mode_;
  const PictureContent content_;
  const int width_;  // of the callout
  const int height_;
  PictureCanvas canvas_;
};

}  // namespace

const char* PictureFonts() {
  return "system-ui, -apple-system, 'Segoe UI', Roboto, 'Noto Sans', 'PingFang SC', 'Microsoft YaHei', "
         "'Noto Sans CJK SC', 'WenQuanYi Micro Hei', sans-serif";
}

std::string Picture(const BubbleDrawDescriptor& descriptor, const PictureOptions& options) {
  const PictureParts parts = PartsOf(Members(descriptor));
  PictureOptions named = options;
  if (named.kind.empty()) named.kind = descriptor.TypeName();
  return Drawing(parts, named, options.is_day.value_or(parts.is_day), SideOf(parts.direction)).Draw();
}

std::string PictureOfNothing(const PictureOptions& options) {
  PictureParts parts;
  parts.title = PictureText{"", "", "nothing is drawn"};
  PictureOptions named = options;
  if (named.kind.empty()) named.kind = "bubble";
  return Drawing(parts, named, options.is_day.value_or(true), Side::kNone).Draw();
}

}  // namespace kavrix::inspect
