#include "inspect/picture_canvas.h"

#include <algorithm>

#include "util/escape.h"

namespace kavrix::inspect {
namespace {

constexpr Palette kDay = {"#e6edf3", "#ffffff", "#8796a5", "#17202a", "#53616f", "#eaeff4", "#b42318"};
constexpr Palette kNight = {"#131a22", "#26313d", "#7d8b99", "#f2f6fa", "#b3c0cc", "#384654", "#ff9d92"};

constexpr Letters kSmall = {10};  // under lights, cameras and lanes
constexpr Letters kChipLetters = {11};
constexpr int kChipTextWidth = 232;
constexpr int kChipPadding = 7;

// Fills an element with the colour 0xAARRGGBB.
void AddFill(XmlWriter& xml, std::uint32_t word) {
  constexpr std::uint32_t kOpaque = 0xFF;
  std::string text = "#";
  AppendHex(text, word & 0xFFFFFF, 6);
  xml.With("fill", text);
  const std::uint32_t alpha = word >> 24;
  if (alpha == kOpaque) return;
  const std::string thousandths = std::to_string(1000 + alpha * 1000 / kOpaque).substr(1);
  xml.With("fill-opacity", "0." + thousandths);
}

}  // namespace

const Palette& PaletteOf(bool is_day) { return is_day ? kDay : kNight; }

int PictureCanvas::Text(int x, int y, int width, std::string_view text, const TextStyle& style) {
  return Text(x, y, width, {"", "", std::string(text)}, style);
}

int PictureCanvas::Text(int x, int y, int width, const PictureText& text, const TextStyle& style) {
  const Letters letters = style.letters;
  const int before = TextWidth(text.before, letters);
  const std::string value = CutText(text.value, letters, width - before);
  xml_.Begin("text").With("x", x).With("y", y).With("font-size", letters.size);
  xml_.With("fill", style.fill == nullptr ? palette_.text : style.fill);
  if (letters.is_bold) xml_.With("font-weight", "bold");
  if (style.is_centred) xml_.With("text-anchor", "middle");
  if (!text.before.empty()) xml_.Begin("tspan").With("fill", palette_.muted).Text(text.before).End();
  if (text.path.empty()) {
    xml_.Text(value);
  } else {
    xml_.Begin("tspan").With("data-member", text.path).Text(value).End();
  }
  xml_.End();
  return before + TextWidth(value, letters);
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

// Shrinks a number of many digits to fit into a circle, as long as it can be read.
void PictureCanvas::NumberIn(int x, int y, std::int64_t number, int size, const char* fill) {
  constexpr int kDigits = 3;
  constexpr int kLeastSize = 9;
  constexpr int kRoom = 34;
  const std::string text = std::to_string(number);
  const int length = std::max(kDigits, static_cast<int>(text.size()));
  const int fitting = std::max(kLeastSize, size * kDigits / length);
  Text(x, y + fitting * 7 / 20, kRoom, text, {{fitting, true}, fill, true});
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
  constexpr int kRoom = kLightWidth - 4;
  const TextStyle small = {kSmall, palette_.muted, true};
  int baseline = y + 55;
  if (!light.text.empty()) {
    Text(middle, baseline, kRoom, {light.path_of_text, "", light.text}, {{9, true}, nullptr, true});
    baseline += 14;
  }
  const bool has_total = light.total_seconds > 0;
  Text(middle, baseline, kRoom, has_total ? "of " + std::to_string(light.total_seconds) + " s" : "seconds",
       small);
  Text(middle, baseline + 14, kRoom, "phase " + std::to_string(light.phase), small);
  if (light.arrow > 0) Text(middle, baseline + 28, kRoom, "arrow " + std::to_string(light.arrow), small);
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
  Text(middle, y + 55, kCameraWidth - 4, "type " + std::to_string(camera.type),
       {kSmall, palette_.muted, true});
}

void PictureCanvas::Lanes(int x, int y, int target) {
  Rect(x, y, LanesWidth(target), kLanesHeight, 0, "#3a4652");
  const int left = x + (target - 1) * kLaneWidth;
  Rect(left + 1, y + 1, kLaneWidth - 2, kLanesHeight - 2, 3, "#1769d2");
  for (int lane = 1; lane < target; ++lane) {
    xml_.Begin("path").With(
        "d", "M" + std::to_string(x + lane * kLaneWidth) + ' ' + std::to_string(y + 4) + "v36");
    xml_.With("stroke", "#ffffff").With("stroke-width", 2).With("stroke-dasharray", "7 6").End();
  }
  NumberIn(left + kLaneWidth / 2, y + kLanesHeight / 2, target, 17, "#ffffff");
}

int PictureCanvas::ChipWidth(const PictureText& text) {
  return std::min(TextWidth(text.before + text.value, kChipLetters), kChipTextWidth) + 2 * kChipPadding;
}

void PictureCanvas::Chip(int x, int y, const PictureText& text) {
  Rect(x, y, ChipWidth(text), kChipHeight, 6, palette_.chip);
  Text(x + kChipPadding, y + 14, kChipTextWidth, text, {kChipLetters});
}

void PictureCanvas::Colour(int x, int y, std::uint32_t word) {
  xml_.Begin("rect").With("x", x).With("y", y + 2).With("width", 12).With("height", 12).With("rx", 3);
  AddFill(xml_, word);
  xml_.With("stroke", palette_.border).End();
  std::string hex = "0x";
  AppendHex(hex, word, 8);
  Text(x + 18, y + 12, kColourWidth - 18, hex, {kSmall, palette_.muted});
}

void PictureCanvas::Bar(int x, int y, int height, std::uint32_t word) {
  xml_.Begin("rect").With("x", x - 2).With("y", y).With("width", 4).With("height", height).With("rx", 2);
  AddFill(xml_, word);
  xml_.With("stroke", palette_.border).End();
}

void PictureCanvas::Image(int x, int y) {
  Rect(x, y, 18, 18, 3, palette_.chip, palette_.border);
  const std::string at = std::to_string(x + 3) + ' ' + std::to_string(y + 14);
  Path("M" + at + "l4-6l3 4l2-2l3 4Z", palette_.muted, palette_.muted, 1);
  Circle(x + 12, y + 6, 1, palette_.muted, palette_.muted, 1);
}

}  // namespace kavrix::inspect
