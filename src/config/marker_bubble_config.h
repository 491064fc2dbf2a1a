#ifndef KAVRIX_CONFIG_MARKER_BUBBLE_CONFIG_H_
#define KAVRIX_CONFIG_MARKER_BUBBLE_CONFIG_H_

#include "config/bubble_style_record.h"

namespace kavrix {

// The style of the marker bubble, which the transform holds itself instead of asking the context.
struct MarkerBubbleConfig : BubbleStyleRecord<4> {};

}  // namespace kavrix

#endif  // KAVRIX_CONFIG_MARKER_BUBBLE_CONFIG_H_
