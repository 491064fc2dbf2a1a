#include "inspect/picture.h"

#include "inspect/display_width.h"
#include "inspect/members.h"
#include "inspect/picture_canvas.h"
#include "inspect/picture_content.h"
#include "inspect/picture_parts.h"

namespace kavrix::inspect {
namespace {

constexpr int kMargin = 24;  // around the callout; the pointer is in it
constexpr int kPadding = 18;
constexpr int kCaptionSize = 10;
constexpr std::size_t kDescriptionColumns = 60;

// With a fallback for Chinese on each of the usual systems.
constexpr char kFonts[] =
    "system-ui, -apple-system, 'Segoe UI', Roboto, 'Noto Sans', 'PingFang SC', 'Microsoft YaHei', "
    "'Noto Sans CJK SC', 'WenQuanYi Micro Hei', sans-serif";

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
        content_(DrawContent(parts, options.problem, palette_)),
        width_(content_.width + 2 * kPadding),
        height_(content_.height + 2 * kPadding),
        caption_(Caption(is_day)),
        canvas_(palette_) {}

  std::string Draw() {
    Begin();
    Callout();
    BelowCallout();
    return canvas_.xml().End().Take();
  }

 private:
  static constexpr int kBelowCallout = 2 * kMargin + 8;

  std::string Caption(bool is_day) const {
    if (side_ == Side::kNone) return "schematic, nothing drawn";
    return std::string("schematic, ") + (is_day ? "day" : "night") + ", points " + NameOf(side_) +
           " (direction " + std::to_string(parts_.direction) + ')';
  }

  bool HasStyle() const { return !parts_.style_name.empty(); }
  int FullWidth() const { return width_ + 2 * kMargin; }

  void Begin() {
    const int full_height = height_ + kBelowCallout + (HasStyle() ? 24 : 10);
    XmlWriter& xml = canvas_.xml();
    xml.Begin("svg").With("xmlns", "http://www.w3.org/2000/svg").With("role", "img");
    xml.With("xml:space", "preserve").With("font-family", kFonts);
    xml.With("width", FullWidth()).With("height", full_height);
    xml.With("viewBox", "0 0 " + std::to_string(FullWidth()) + ' ' + std::to_string(full_height));
    const std::string title = parts_.title ? ": " + CutText(parts_.title->value, kDescriptionColumns) : "";
    xml.Element("title", CutText(options_.kind, kDescriptionColumns) + title);
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
      const std::string bar = "M" + std::to_string(kMargin + 8) + ' ' + std::to_string(kMargin + 16) + 'v' +
                              std::to_string(height_ - 32);
      canvas_.Path(bar, "none", palette_.border, 6);
      canvas_.Path(bar, "none", HexColour(parts_.colours.shown.front()), 4);
    }
    // An inner picture clips what is wider than it should be.
    xml.Begin("svg").With("x", kMargin + kPadding).With("y", kMargin + kPadding);
    xml.With("width", content_.width).With("height", content_.height).Markup(content_.svg).End();
  }

  void BelowCallout() {
    const TextStyle small = {kCaptionSize, palette_.muted};
    const int baseline = height_ + kBelowCallout - 2;
    canvas_.Text(10, baseline, caption_, small);
    if (!HasStyle()) return;
    const auto columns = static_cast<std::size_t>((FullWidth() - 20) * 5 / (3 * kCaptionSize));
    canvas_.Text(10, baseline + 14, {"style_name", "style ", parts_.style_name, ""}, columns, small);
  }

  // Says in words what the picture shows.
  std::string Description() const {
    std::string text = caption_ + '.';
    const auto add = [&](const PictureText& part) {
      text += ' ' + part.before + CutText(part.value, kDescriptionColumns) + part.after + '.';
    };
    if (parts_.title) add(*parts_.title);
    for (const PictureText& line : parts_.lines.shown) add(line);
    for (const PictureLight& light : parts_.lights.shown) {
      text += " Light of phase " + std::to_string(light.phase) + ": " + std::to_string(light.seconds) + " s.";
    }
    for (const PictureCamera& camera : parts_.cameras.shown) {
      text += " Camera of type " + std::to_string(camera.type) + ": " + std::to_string(camera.speed) + '.';
    }
    if (parts_.lane != 0) text += " To lane " + std::to_string(parts_.lane) + '.';
    for (const PictureText& chip : parts_.chips.shown) add(chip);
    if (!options_.problem.empty()) add({"", "Problem: ", options_.problem, ""});
    return text;
  }

  const PictureParts& parts_;
  const PictureOptions& options_;
  const Side side_;
  const Palette& palette_;
  const PictureContent content_;
  const int width_;  // of the callout
  const int height_;
  const std::string caption_;
  PictureCanvas canvas_;
};

}  // namespace

std::string Picture(const BubbleDrawDescriptor& descriptor, const PictureOptions& options) {
  const PictureParts parts = PartsOf(Members(descriptor));
  PictureOptions named = options;
  if (named.kind.empty()) named.kind = descriptor.TypeName();
  return Drawing(parts, named, options.is_day.value_or(parts.is_day), SideOf(parts.direction)).Draw();
}

std::string PictureOfNothing(const PictureOptions& options) {
  PictureParts parts;
  parts.title = PictureText{"", "", "nothing is drawn", ""};
  PictureOptions named = options;
  if (named.kind.empty()) named.kind = "bubble";
  return Drawing(parts, named, options.is_day.value_or(true), Side::kNone).Draw();
}

}  // namespace kavrix::inspect
