#ifndef KAVRIX_INSPECT_PICTURE_CONTENT_H_
#define KAVRIX_INSPECT_PICTURE_CONTENT_H_

#include <string>

#include "inspect/picture_canvas.h"
#include "inspect/picture_parts.h"

namespace kavrix::inspect {

// What stands in a callout.
struct PictureContent {
  std::string svg;
  int width = 0;
  int height = 0;
};

// Draws parts below each other, and at the end what is wrong, if anything is.
PictureContent DrawContent(const PictureParts& parts, const std::string& problem, const Palette& palette);

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_PICTURE_CONTENT_H_
