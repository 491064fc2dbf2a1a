#ifndef KAVRIX_INSPECT_PICTURE_CANVAS_H_
#define KAVRIX_INSPECT_PICTURE_CANVAS_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "inspect/picture_parts.h"
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

// The width that a text is given, in pixels: more than most fonts need. A text that needs even more is
// clipped.
int TextWidth(std::string_view text, int size);

struct TextStyle {
  int size = 12;
  const char* fill = nullptr;
  bool is_bold = false;
  bool is_centred = false;
  const char* member =
      nullptr;  // the path of the member whose value it is, for programs that read the picture
};

// Draws the shapes of a picture. Places are pixels from the upper left corner; that of a text is its
// baseline.
class PictureCanvas {
 public:
  explicit PictureCanvas(const Palette& palette) : palette_(palette) {}

  XmlWriter& xml() { return xml_; }

  void Text(int x, int y, std::string_view text, const TextStyle& style);
  // A text of a member, with the words before and after it.
  void Text(int x, int y, const PictureText& text, std::size_t columns, const TextStyle& style);
  void Rect(int x, int y, int width, int height, int radius, std::string_view fill,
            const char* stroke = nullptr);
  void Path(std::string_view path, std::string_view fill, std::string_view stroke, int stroke_width);
  void Circle(int x, int y, int radius, std::string_view fill, std::string_view stroke, int stroke_width);

  // Each of these draws one part into a cell with (x, y) in its upper left corner.
  static constexpr int kLightWidth = 72;
  void Light(int x, int y, const PictureLight& light);
  static int HeightOf(const PictureLight& light);
  static constexpr int kCameraWidth = 54;
  static constexpr int kCameraHeight = 58;
  void Camera(int x, int y, const PictureCamera& camera);
  static constexpr int kLaneWidth = 30;
  static constexpr int kLanesHeight = 44;
  static constexpr int kMostLanes = 8;
  void Lanes(int x, int y, int lanes);  // the last of them is the one to change to
  static constexpr int kChipHeight = 20;
  static int ChipWidth(const PictureText& text);
  void Chip(int x, int y, const PictureText& text);
  static constexpr int kColourWidth = 84;
  static constexpr int kColourHeight = 16;
  void Colour(int x, int y, std::uint32_t word);
  static constexpr int kImageWidth = 24;
  void Image(int x, int y);

 private:
  void NumberIn(int x, int y, std::int64_t number, int size, const char* fill);

  const Palette& palette_;
  XmlWriter xml_;
};

// A word 0xAARRGGBB as "#rrggbb".
std::string HexColour(std::uint32_t word);

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_PICTURE_CANVAS_H_
