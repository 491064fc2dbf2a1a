#ifndef KAVRIX_INSPECT_TRANSFORM_SETUP_H_
#define KAVRIX_INSPECT_TRANSFORM_SETUP_H_

#include <memory>

#include "config/marker_bubble_config.h"
#include "context/kavrix_context.h"

namespace kavrix::inspect {

/// What a configuration gives a transform.
struct TransformSetup {
  std::shared_ptr<KavrixContext> context;  ///< For the transform's constructor: not null.
  MarkerBubbleConfig marker_bubble;        ///< For MapResourceTransform::SetMarkerBubbleConfig.
};

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_TRANSFORM_SETUP_H_
