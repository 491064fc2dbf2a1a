// The names of the descriptor types. They are here and not in the classes because a class has its table of
// virtual functions where the first of them is defined: in the library only, and not in every client that
// makes one, perhaps without RTTI.

#include "descriptors/descriptors.h"

namespace kavrix {

#define KAVRIX_DEFINE_TYPE_NAME(Descriptor) \
  const char* Descriptor::TypeName() const { return #Descriptor; }

KAVRIX_DEFINE_TYPE_NAME(BubbleDrawDescriptor)
KAVRIX_DEFINE_TYPE_NAME(CameraDrawDescriptor)
KAVRIX_DEFINE_TYPE_NAME(CompanionBubbleDrawDescriptor)
KAVRIX_DEFINE_TYPE_NAME(DestNameEtaDrawDescriptor)
KAVRIX_DEFINE_TYPE_NAME(ExplainBubbleDrawDescriptor)
KAVRIX_DEFINE_TYPE_NAME(HDLaneChangeBubbleDrawDescriptor)
KAVRIX_DEFINE_TYPE_NAME(HDLongSolidBubbleDrawDescriptor)
KAVRIX_DEFINE_TYPE_NAME(IndoorEntriesBubbleDrawDescriptor)
KAVRIX_DEFINE_TYPE_NAME(LightCountdownTimerDrawDescriptor)
KAVRIX_DEFINE_TYPE_NAME(LightWaitBubbleDrawDescriptor)
KAVRIX_DEFINE_TYPE_NAME(MarkerDrawDescriptor)
KAVRIX_DEFINE_TYPE_NAME(MultiLightCountdownTimerDrawDescriptor)
KAVRIX_DEFINE_TYPE_NAME(RouteAccidentBubbleDrawDescriptor)
KAVRIX_DEFINE_TYPE_NAME(SafeWarningBubbleDrawDescriptor)
KAVRIX_DEFINE_TYPE_NAME(TrafficDrawDescriptor)
KAVRIX_DEFINE_TYPE_NAME(TurnArrowBubbleDrawDescriptor)
KAVRIX_DEFINE_TYPE_NAME(ViaPointDrawDescriptor)
KAVRIX_DEFINE_TYPE_NAME(YawNoticeBubbleDrawDescriptor)

}  // namespace kavrix
