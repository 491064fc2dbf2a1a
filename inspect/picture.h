#ifndef KAVRIX_INSPECT_PICTURE_H_
#define KAVRIX_INSPECT_PICTURE_H_

#include <optional>
#include <string>

#include "descriptors/bubble_draw_descriptor.h"

namespace kavrix::inspect {

/// What a picture shows beside its descriptor.
struct PictureOptions {
  std::string kind;            ///< For the picture's title: "trafficBubble"; empty: the descriptor's type.
  std::optional<bool> is_day;  ///< Day or night in place of the descriptor's `mode_flag`.
  std::string problem;         ///< Why the decode of the name failed; empty: it did not.
};

/// Returns a schematic picture of a descriptor as an SVG element: what it says, not how a client draws it. A
/// callout with its pointer, the texts, lights, cameras and lanes, and the colours among the style words.
/// What the values of `direction` mean is the client's own: here 1 points left, 2 right, 3 up, all others
/// down.
///
/// Texts may hold any bytes. The picture is below 32 KiB however long they are: a long text ends in "…", a
/// long list in "+n". It has no ids, scripts or references, so that any number of pictures may stand in a
/// page. Throws std::bad_alloc.
std::string Picture(const BubbleDrawDescriptor& descriptor, const PictureOptions& options = {});

/// Returns the same where `out` was left untouched: a picture which says that nothing is drawn.
std::string PictureOfNothing(const PictureOptions& options);

/// Returns the font families of pictures, as CSS has them: with one for Chinese on each of the usual systems.
const char* PictureFonts();

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_PICTURE_H_
