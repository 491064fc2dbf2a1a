#ifndef KAVRIX_CONFIG_MARKER_BUBBLE_CONFIG_H_
#define KAVRIX_CONFIG_MARKER_BUBBLE_CONFIG_H_

#include "bubble_style_record.h"

namespace kavrix {

/// The style record of the marker bubble. The transform holds it
/// (MapResourceTransform::SetMarkerBubbleConfig); the context does not.
struct MarkerBubbleConfig : BubbleStyleRecord<4> {};

}  // namespace kavrix

#endif  // KAVRIX_CONFIG_MARKER_BUBBLE_CONFIG_H_
