#include "inspect/picture_canvas.h"

#include <algorithm>

#include "inspect/display_width.h"

namespace kavrix::inspect {
namespace {

constexpr Palette kDay = {"#e6edf3", "#ffffff", "#8796a5", "#17202a", "#53616f", "#eaeff4", "#b42318"};
constexpr Palette kNight = {"#131a22", "#26313d", "#7d8b99", "#f2f6fa", "#b3c0cc", "#384654", "#ff9d92"};

constexpr int kSmall = 10;  // the size of the texts under lights, cameras and lanes
constexpr std::size_t kCellColumns = 12;
constexpr int kChipSize = 11;
constexpr std::size_t kChipColumns = 32;

std::string HexDigits(std::uint32_t word, int digits) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string hex;
  for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) hex += kDigits[word >> shift & 0xF];
  return hex;
}

}  // namespace

const Palette& PaletteOf(bool is_day) { return is_day ? kDay : kNight; }

int TextWidth(std::string_view text, int size) { return static_cast<int>(DisplayWidth(text)) * size * 3 / 5; }

std::string HexColour(std::uint32_t word) { return '#' + HexDigits(word, 6); }

void PictureCanvas::Text(int x, int y, std::string_view text, const TextStyle& style) {
  xml_.Begin("text").With("x", x).With("y", y).With("font-size", style.size);
  xml_.With("fill", style.fill == nullptr ? palette_.text : style.fill);
  if (style.is_bold) xml_.With("font-weight", "bold");
  if (style.is_centred) xml_.With("text-anchor", "middle");
  if (style.member != nullptr) xml_.With("data-member", style.member);
  xml_.Text(text).End();
}

void PictureCanvas::Text(int x, int y, const PictureText& text, std::size_t columns, const TextStyle& style) {
  xml_.Begin("text").With("x", x).With("y", y).With("font-size", style.size).With("fill", palette_.text);
  if (!text.before.empty()) xml_.Begin("tspan").With("fill", palette_.muted).Text(text.before).End();
  const std::size_t around = text.before.size() + text.after.size();
  xml_.Begin("tspan").With("data-member", text.path).Text(CutText(text.value, columns - around)).End();
  if (!text.after.empty()) xml_.Begin("tspan").With("fill", palette_.muted).Text(text.after).End();
  xml_.End();
}

void PictureCanvas::Rect(int x, int y, int width, int height, int radius, std::string_view fill,
                         const char* stroke) {
  xml_.Begin("rect").With("x", x).With("y", y).With("width", width).With("height", height);
  if (radius != 0) xml_.With("rx", radius);
  xml_.With("fill", fill);
  if (stroke != nullptr) xml_.With("stroke", stroke);
  xml_.End();
}

void PictureCanvas::Path(std::string_view path, std::string_view fill, std::string_view stroke,
                         int stroke_width) {
  xml_.Begin("path").With("d", path).With("fill", fill).With("stroke", stroke);
  xml_.With("stroke-width", stroke_width)
      .With("stroke-linecap", "round")
      .With("stroke-linejoin", "round")
      .End();
}

void PictureCanvas::Circle(int x, int y, int radius, std::string_view fill, std::string_view stroke,
                           int stroke_width) {
  xml_.Begin("circle")
      .With("cx", x)
      .With("cy", y)
      .With("r", radius)
      .With("fill", fill)
      .With("stroke", stroke);
  xml_.With("stroke-width", stroke_width).End();
}

// Shrinks a number of many digits until it fits into a circle.
void PictureCanvas::NumberIn(int x, int y, std::int64_t number, int size, const char* fill) {
  constexpr int kDigits = 3;
  constexpr int kLeastSize = 5;
  const std::string text = std::to_string(number);
  const int length = std::max(kDigits, static_cast<int>(text.size()));
  const int fitting = std::max(kLeastSize, size * kDigits / length);
  Text(x, y + fitting * 7 / 20, text, {fitting, fill, true, true});
}

int PictureCanvas::HeightOf(const PictureLight& light) {
  return 74 + (light.text.empty() ? 0 : 14) + (light.arrow > 0 ? 14 : 0);
}

void PictureCanvas::Light(int x, int y, const PictureLight& light) {
  constexpr int kRadius = 19;
  constexpr int kCircumference = 119;
  const int middle = x + kLightWidth / 2;
  Circle(middle, y + 22, kRadius, "#1f2933", palette_.border, 3);
  if (light.total_seconds > 0) {
    const std::int64_t left = std::clamp<std::int64_t>(light.seconds, 0, light.total_seconds);
    xml_.Begin("circle").With("cx", middle).With("cy", y + 22).With("r", kRadius).With("fill", "none");
    xml_.With("stroke", "#f5a524").With("stroke-width", 3);
    xml_.With("stroke-dasharray", std::to_string(left * kCircumference / light.total_seconds) + ' ' +
                                      std::to_string(kCircumference));
    xml_.With("transform", "rotate(-90 " + std::to_string(middle) + ' ' + std::to_string(y + 22) + ')').End();
  }
  NumberIn(middle, y + 22, light.seconds, 17, "#ffffff");
  const TextStyle small = {kSmall, palette_.muted, false, true};
  int baseline = y + 55;
  if (!light.text.empty()) {
    Text(middle, baseline, CutText(light.text, kCellColumns),
         {kSmall, nullptr, true, true, light.path_of_text.c_str()});
    baseline += 14;
  }
  const std::string total =
      light.total_seconds > 0 ? "of " + std::to_string(light.total_seconds) + " s" : "seconds";
  Text(middle, baseline, CutText(total, kCellColumns), small);
  Text(middle, baseline + 14, CutText("phase " + std::to_string(light.phase), kCellColumns), small);
  if (light.arrow > 0) {
    const std::string arrow = CutText("arrow " + std::to_string(light.arrow), kCellColumns - 2);
    const int left = middle - TextWidth(arrow, kSmall) / 2 - 9;
    Text(middle, baseline + 28, arrow, small);
    Path("M" + std::to_string(left) + ' ' + std::to_string(baseline + 28) + "v-4q0-3 3-3h2m-2-2l3 2l-3 2",
         "none", palette_.muted, 1);
  }
}

void PictureCanvas::Camera(int x, int y, const PictureCamera& camera) {
  const int middle = x + kCameraWidth / 2;
  Circle(middle, y + 22, 18, "#ffffff", "#d92d20", 5);
  if (camera.speed != 0) {
    NumberIn(middle, y + 22, camera.speed, 16, "#17202a");
  } else {  // a camera that limits no speed
    Rect(middle - 9, y + 16, 13, 12, 2, "#17202a");
    Path("M" + std::to_string(middle + 5) + ' ' + std::to_string(y + 22) + "l5-4v8Z", "#17202a", "#17202a",
         1);
  }
  Text(middle, y + 55, CutText("type " + std::to_string(camera.type), kCellColumns - 3),
       {kSmall, palette_.muted, false, true});
}

void PictureCanvas::Lanes(int x, int y, int lanes) {
  Rect(x, y, lanes * kLaneWidth, kLanesHeight, 3, "#3a4652", palette_.border);
  const int target = x + (lanes - 1) * kLaneWidth;
  Rect(target + 1, y + 1, kLaneWidth - 2, kLanesHeight - 2, 3, "#1769d2");
  for (int lane = 1; lane < lanes; ++lane) {
    xml_.Begin("path").With(
        "d", "M" + std::to_string(x + lane * kLaneWidth) + ' ' + std::to_string(y + 4) + "v36");
    xml_.With("stroke", "#ffffff").With("stroke-width", 2).With("stroke-dasharray", "7 6").End();
  }
  Path("M" + std::to_string(target + kLaneWidth / 2) + ' ' + std::to_string(y + 36) + "v-27m-7 8l7-8l7 8",
       "none", "#ffffff", 3);
}

int PictureCanvas::ChipWidth(const PictureText& text) {
  return TextWidth(CutText(text.before + text.value + text.after, kChipColumns), kChipSize) + 14;
}

void PictureCanvas::Chip(int x, int y, const PictureText& text) {
  Rect(x, y, ChipWidth(text), kChipHeight, 6, palette_.chip);
  if (text.value.empty()) return Text(x + 7, y + 14, text.before, {kChipSize});
  Text(x + 7, y + 14, text, kChipColumns, {kChipSize});
}

void PictureCanvas::Colour(int x, int y, std::uint32_t word) {
  constexpr int kOpaque = 0xFF;
  const int alpha = static_cast<int>(word >> 24);
  xml_.Begin("rect").With("x", x).With("y", y + 2).With("width", 12).With("height", 12).With("rx", 3);
  xml_.With("fill", HexColour(word));
  if (alpha != kOpaque) xml_.With("fill-opacity", "0." + std::to_string(alpha * 1000 / kOpaque));
  xml_.With("stroke", palette_.border).End();
  const std::string hex = "0x" + HexDigits(word, 8);
  Text(x + 18, y + 12, hex, {kSmall, palette_.muted});
}

void PictureCanvas::Image(int x, int y) {
  Rect(x, y, 18, 18, 3, palette_.chip, palette_.border);
  const std::string at = std::to_string(x + 3) + ' ' + std::to_string(y + 14);
  Path("M" + at + "l4-6l3 4l2-2l3 4Z", palette_.muted, palette_.muted, 1);
  Circle(x + 12, y + 6, 1, palette_.muted, palette_.muted, 1);
}

}  // namespace kavrix::inspect
