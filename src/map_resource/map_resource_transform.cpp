#include "map_resource/map_resource_transform.h"

#include <utility>

#include "descriptors/descriptors.h"
#include "map_resource/bubble_markers.h"
#include "map_resource/resource_name.h"
#include "util/tagged_log.h"

namespace kavrix {

using logging::LogLevel;

MapResourceTransform::MapResourceTransform(std::shared_ptr<KavrixContext> context)
    : context_(std::move(context)) {}

void MapResourceTransform::GetBubbleDrawDescriptor(const std::string& resource_name,
                                                   std::shared_ptr<BubbleDrawDescriptor>& out) {
  KAVRIX_LOG(LogTagKavrixMapLayerMgr, LogLevel::kRoutine, "resource_name:" << resource_name);

  const std::optional<BubbleKind> kind = FindBubbleKind(resource_name);
  if (!kind) {
    KAVRIX_LOG(LogTagKavrixMapLayerMgr, LogLevel::kFailure,
               "resource_name:" << resource_name << ", it is a not valid bubble.");
    return;
  }
  switch (*kind) {  // GCOVR_EXCL_BR_LINE: there is no other value
#define KAVRIX_BUBBLE_KIND(Kind, stem, marker, Descriptor, Parse, Encode) \
  case BubbleKind::k##Kind:                                               \
    return Parse(resource_name, out);
#include "map_resource/bubble_kinds.def"
  }
}

template <class Descriptor>
void MapResourceTransform::ParseResourceName(const std::string& resource_name,
                                             std::shared_ptr<BubbleDrawDescriptor>& out) {
  PublishInitialised<Descriptor>(resource_name, out);
}

template void MapResourceTransform::ParseResourceName<YawNoticeBubbleDrawDescriptor>(
    const std::string&, std::shared_ptr<BubbleDrawDescriptor>&);
template void MapResourceTransform::ParseResourceName<HDLaneChangeBubbleDrawDescriptor>(
    const std::string&, std::shared_ptr<BubbleDrawDescriptor>&);

}  // namespace kavrix
