#ifndef KAVRIX_INSPECT_PICTURE_CANVAS_H_
#define KAVRIX_INSPECT_PICTURE_CANVAS_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "inspect/picture_parts.h"
#include "inspect/text_width.h"
#include "inspect/xml_writer.h"

namespace kavrix::inspect {

struct Palette {
  const char* map;
  const char* callout;
  const char* border;
  const char* text;
  const char* muted;
  const char* chip;
  const char* problem;
};

const Palette& PaletteOf(bool is_day);

struct TextStyle {
  Letters letters;
  const char* fill = nullptr;  // null: that of texts
  bool is_centred = false;     // around x, else to the right of it
};

// Draws the shapes of a picture. Places are pixels from the upper left corner; that of a text is its
// baseline.
class PictureCanvas {
 public:
  explicit PictureCanvas(const Palette& palette) : palette_(palette) {}

  XmlWriter& xml() { return xml_; }

  // Cuts a text to `width` and returns the width that it takes.
  int Text(int x, int y, int width, std::string_view text, const TextStyle& style);
  int Text(int x, int y, int width, const PictureText& text, const TextStyle& style);
  void Rect(int x, int y, int width, int height, int radius, std::string_view fill,
            const char* stroke = nullptr);
  void Path(std::string_view path, std::string_view fill, std::string_view stroke, int stroke_width);
  void Circle(int x, int y, int radius, std::string_view fill, std::string_view stroke, int stroke_width);

  // Each of these draws one part into a cell with (x, y) in its upper left corner.
  static constexpr int kLightWidth = 84;
  void Light(int x, int y, const PictureLight& light);
  static int HeightOf(const PictureLight& light);
  static constexpr int kCameraWidth = 54;
  static constexpr int kCameraHeight = 58;
  void Camera(int x, int y, const PictureCamera& camera);
  static constexpr int kLaneWidth = 30;
  static constexpr int kLanesHeight = 44;
  static constexpr int kMostLanes = 8;
  // The lane to change to, those left of it, and a bit of road, which may have more lanes or none.
  void Lanes(int x, int y, int target);
  static int LanesWidth(int target) { return target * kLaneWidth + kLaneWidth / 2; }
  static constexpr int kChipHeight = 20;
  static int ChipWidth(const PictureText& text);
  void Chip(int x, int y, const PictureText& text);
  static constexpr int kColourWidth = 86;
  static constexpr int kColourHeight = 16;
  void Colour(int x, int y, std::uint32_t word);  // 0xAARRGGBB
  // A bar in a colour, along one side of a callout.
  void Bar(int x, int y, int height, std::uint32_t word);
  static constexpr int kImageWidth = 24;
  void Image(int x, int y);

 private:
  void NumberIn(int x, int y, std::int64_t number, int size, const char* fill);

  const Palette& palette_;
  XmlWriter xml_;
};

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_PICTURE_CANVAS_H_
